// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "dockwidget.h"

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

} // namespace Host
