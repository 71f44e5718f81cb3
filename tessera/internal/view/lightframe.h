// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPalette>

class QWidget;

/// Gives all widgets in a white frame, also those made later, the light palette: below a style
/// sheet a widget takes none from its parent but that of the system, which may be dark.
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

    QWidget *m_frame; // borrowed, the parent
    QPalette m_light;
};
