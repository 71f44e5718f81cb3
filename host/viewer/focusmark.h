// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QFocusFrame;
class QWidget;

namespace Viewer {

/// A frame around a widget while it has the keyboard, for one that shows nothing of it by itself.
class FocusMark final : public QObject
{
    Q_OBJECT

public:
    /// `widget` becomes the parent.
    explicit FocusMark(QWidget *widget);
    ~FocusMark() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_widget; // parent
    QFocusFrame *m_frame; // by parent
};

} // namespace Viewer
