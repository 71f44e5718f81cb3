// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

/// Keeps the wheel from a cell editor that does not hold the keyboard focus, so that scrolling a
/// table changes no value: the event goes on to the view. Lives as long as the editor.
class WheelFocusFilter final : public QObject
{
    Q_OBJECT

public:
    /// Watches `editor`. Only clicks and Tab give it the focus from now on.
    explicit WheelFocusFilter(QWidget *editor);

    /// Watches a child of the editor as well; the focus anywhere in the editor lets the wheel pass.
    void watch(QWidget *child);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool editorHasFocus() const;

    QWidget *m_editor; // by parent
};
