// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// Reports when the widget that it filters gets and loses the keyboard focus.
class SpinBoxEventCatcher final : public QObject
{
    Q_OBJECT

public:
    explicit SpinBoxEventCatcher(QObject *parent = nullptr);
    ~SpinBoxEventCatcher() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void focusEvent(bool hasFocus);
};
