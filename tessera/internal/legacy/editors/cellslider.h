// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSlider>

/// The horizontal slider of a cell editor. It is reached by Tab and by clicks, and takes the wheel
/// only while its editor holds the focus.
class CellSlider final : public QSlider
{
    Q_OBJECT

public:
    explicit CellSlider(QWidget *parent = nullptr);
    ~CellSlider() override;

protected:
    void wheelEvent(QWheelEvent *event) override;
};
