// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "treeviewheaderview.h"

#include "screenratio.h"

#include "internal/style/treeviewheaderstyle.h"
#include "plugin/contract/viewer/stylehelper.h"

#include <QFontMetrics>

namespace Plugin::Tessera::Internal::View {

CTreeViewHeaderView::CTreeViewHeaderView(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_style(new Style::CTreeViewHeaderStyle)
{
    setStyle(m_style);
    setFont(titleFont());
    setDefaultAlignment(Qt::AlignLeft);
    setTextElideMode(Qt::ElideRight);
}

CTreeViewHeaderView::~CTreeViewHeaderView()
{
    setStyle(nullptr);
    delete m_style; // not later: a proxy style passes that event on, and its base style goes alone
}

QFont CTreeViewHeaderView::titleFont() const
{
    QFont title = font();
    title.setFamily(QStringLiteral("Segoe UI"));
    title.setPixelSize(CStyleHelper::computePixelFontSize(12));
    title.setWeight(QFont::Bold);
    return title;
}

QSize CTreeViewHeaderView::sizeHint() const
{
    QSize size = QHeaderView::sizeHint();
    size.setHeight(QFontMetrics(titleFont()).height() + static_cast<int>(screenRatio() * 13.0));
    return size;
}

} // namespace Plugin::Tessera::Internal::View
