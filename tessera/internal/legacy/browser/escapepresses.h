// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// Whether the last key that was pressed anywhere in the application was Escape. All browsers share
/// one: two presses clear the search, also when they went to different browsers.
class EscapePresses final : public QObject
{
    Q_OBJECT

public:
    /// Made at the first call, by parent of the application.
    static EscapePresses &instance();

    /// Notes a press of Escape; true when it is the second one in a row, which ends the row.
    bool pressedAgain();
    /// The next Escape is a first one.
    void reset();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    EscapePresses();

    bool m_pressed = false;
};
