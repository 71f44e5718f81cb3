// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSpinBox>

/// The spin box beside an integer slider. Every step is finished at once, so that arrow keys, page
/// keys and the wheel take effect without waiting for the focus to leave.
class VantrelQtSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit VantrelQtSpinBox(QWidget *parent = nullptr);
    ~VantrelQtSpinBox() override;

    /// How many single steps a page key makes.
    int pageStep() const;
    void setPageStep(int steps);

    void stepBy(int steps) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    int m_pageStep = 10;
    bool m_pageKeyPressed = false; // the step now under way comes from a page key
};
