// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "focusmark.h"

#include <QEvent>
#include <QFocusFrame>

namespace Viewer {

FocusMark::FocusMark(QWidget *widget)
    : QObject(widget)
    , m_widget(widget)
    , m_frame(new QFocusFrame(widget))
{
    widget->installEventFilter(this);
}

FocusMark::~FocusMark() = default;

bool FocusMark::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        m_frame->setWidget(m_widget);
    } else if (event->type() == QEvent::FocusOut) {
        m_frame->setWidget(nullptr);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Viewer
