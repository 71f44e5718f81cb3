// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "escapepresses.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>

EscapePresses::EscapePresses()
    : QObject(QCoreApplication::instance())
{
    QCoreApplication::instance()->installEventFilter(this);
}

EscapePresses &EscapePresses::instance()
{
    static QPointer<EscapePresses> presses;
    if (!presses) {
        presses = new EscapePresses;
    }
    return *presses;
}

bool EscapePresses::pressedAgain()
{
    m_pressed = !m_pressed;
    return !m_pressed;
}

void EscapePresses::reset()
{
    m_pressed = false;
}

bool EscapePresses::eventFilter(QObject *watched, QEvent *event)
{
    if ((event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
        && static_cast<const QKeyEvent *>(event)->key() != Qt::Key_Escape) {
        reset();
    }
    return QObject::eventFilter(watched, event);
}
