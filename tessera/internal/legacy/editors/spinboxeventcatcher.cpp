// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "spinboxeventcatcher.h"

#include <QEvent>

SpinBoxEventCatcher::SpinBoxEventCatcher(QObject *parent)
    : QObject(parent)
{
}

SpinBoxEventCatcher::~SpinBoxEventCatcher() = default;

bool SpinBoxEventCatcher::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        Q_EMIT focusEvent(true);
        return false;
    case QEvent::FocusOut:
        Q_EMIT focusEvent(false);
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}
