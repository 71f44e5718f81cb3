// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

/// Keeps a white frame readable under a dark system palette: gives all widgets in it, also those
/// made later, the light palette: below a style sheet a widget takes none from its parent. Under a
/// light system palette it does nothing.
class LightFrame final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `frame`.
    explicit LightFrame(QWidget *frame);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followSystem();
    void paint(QWidget *widget);
    void release(QWidget *widget);

    QWidget *m_frame; // borrowed, the parent
    bool m_isPainting = false;
};
