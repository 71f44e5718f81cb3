// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "spinboxkeys.h"

bool isUndoKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Escape;
}

QKeyEvent undoKeyPress()
{
    return {QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier, QString(), false, 1};
}

bool isFinishKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}
