// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCursor>
#include <QGuiApplication>

/// Shows the wait cursor as long as it lives.
class WaitCursor final
{
public:
    WaitCursor()
    {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~WaitCursor()
    {
        QGuiApplication::restoreOverrideCursor();
    }
    Q_DISABLE_COPY_MOVE(WaitCursor)
};
