// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace Viewer {

/// A line round a widget while it has the keyboard, for one that shows nothing of it by itself.
class FocusMark final : public QWidget
{
    Q_OBJECT

public:
    /// `widget` becomes the parent.
    explicit FocusMark(QWidget *widget);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Viewer
