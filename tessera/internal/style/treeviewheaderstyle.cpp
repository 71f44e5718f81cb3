// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "treeviewheaderstyle.h"

#include "internal/view/featuretableview.h"
#include "internal/view/screenratio.h"
#include "internal/view/treeviewheaderview.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace Plugin::Tessera::Internal::Style {

namespace {

int headerHeight(const QStyleOption &option, const QWidget *widget)
{
    const auto *header = qobject_cast<const View::CTreeViewHeaderView *>(widget);
    return header ? header->sizeHint().height() : option.rect.height();
}

// The first title of a table of its own and the title of a single section stand at the left edge.
bool isIndented(const QStyleOptionHeader &option, const QWidget *widget)
{
    const auto *table =
        widget ? qobject_cast<const View::CFeatureTableView *>(widget->parentWidget()) : nullptr;
    return option.position != QStyleOptionHeader::OnlyOneSection
        && (option.position != QStyleOptionHeader::Beginning || !table
            || table->isConnectedToTreeView());
}

} // namespace

CTreeViewHeaderStyle::CTreeViewHeaderStyle() = default;

CTreeViewHeaderStyle::~CTreeViewHeaderStyle() = default;

void CTreeViewHeaderStyle::drawControl(ControlElement element, const QStyleOption *option,
                                       QPainter *painter, const QWidget *widget) const
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option);
    if (element == CE_HeaderSection && option) {
        drawSection(*option, *painter, widget);
    } else if (element == CE_HeaderLabel && header) {
        drawTitle(*header, *painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void CTreeViewHeaderStyle::drawSection(const QStyleOption &option, QPainter &painter,
                                       const QWidget *widget) const
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(&option);
    const QRect &rect = option.rect;
    const int y = headerHeight(option, widget) - static_cast<int>(7.0 / screenRatio());
    painter.save();
    painter.fillRect(rect, option.palette.base());
    painter.setPen(option.palette.midlight().color());
    painter.drawLine(rect.left(), y, rect.right(), y);
    if (header && header->position != QStyleOptionHeader::End
        && header->position != QStyleOptionHeader::OnlyOneSection) {
        painter.drawLine(rect.right(), rect.top(), rect.right(), y);
    }
    painter.restore();
}

// The width is divided by the ratio, the rectangle is not, which is meant.
void CTreeViewHeaderStyle::drawTitle(const QStyleOptionHeader &option, QPainter &painter,
                                     const QWidget *widget) const
{
    const QRect &rect = option.rect;
    const int scaledWidth = static_cast<int>(rect.width() / screenRatio());
    const bool indented = isIndented(option, widget);
    const int margin = proxy()->pixelMetric(PM_HeaderMargin, &option, widget);
    const int shift = indented ? 7 : -margin;
    const QString title =
        painter.fontMetrics().elidedText(option.text, Qt::ElideRight, scaledWidth - shift);
    const QRect place(rect.x() + shift, rect.y(), rect.width() - shift,
                      headerHeight(option, widget));
    painter.drawText(place, static_cast<int>(option.textAlignment), title);
}

} // namespace Plugin::Tessera::Internal::Style
