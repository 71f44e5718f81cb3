// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "dockwidget.h"

#include <QStyleOption>
#include <QStylePainter>

namespace Host {

DockWidget::DockWidget(QWidget *parent)
    : QDockWidget(parent)
{
}

DockWidget::~DockWidget() = default;

bool DockWidget::isClosed() const
{
    return m_closed;
}

QWidget *DockWidget::release()
{
    m_released = true;
    QWidget *content = widget();
    hide();
    if (content != nullptr) {
        setWidget(nullptr);
        content->setParent(nullptr);
    }
    return content;
}

void DockWidget::setVisible(bool visible)
{
    if (!m_released && m_closed == visible) {
        m_closed = !visible;
        Q_EMIT closedChanged(m_closed);
    }
    QDockWidget::setVisible(visible);
}

void DockWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QStylePainter painter(this);
    if (isFloating()) {
        QStyleOptionFrame frame;
        frame.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameDockWidget, frame);
    }
    QStyleOptionDockWidget title;
    initStyleOption(&title);
    title.title.replace(QLatin1String("&&"), QLatin1String("&"));
    painter.drawControl(QStyle::CE_DockWidgetTitle, title);
}

} // namespace Host
