// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDoubleSpinBox>

/// The spin box of all float editors. It makes no step by itself but asks for one.
class VantrelQtDoubleSpinBox final : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit VantrelQtDoubleSpinBox(QWidget *parent = nullptr);
    ~VantrelQtDoubleSpinBox() override;

    /// By how much a page key changes the value; the receiver of `stepTriggered` asks for it.
    double pageStep() const;
    void setPageStep(double step);

    /// True if `value` reads as what stands in the box, untouched by the user. The box itself
    /// rounds to its decimals, so that its value does not tell.
    bool shows(double value) const;

    /// True when something else than `value` is shown and the user has not typed it.
    bool missesAnswer(double value) const;

    /// Changes nothing but emits `stepTriggered`.
    void stepBy(int steps) override;
    /// With the box's decimals, without trailing zeros and group separators.
    QString textFromValue(double value) const override;

Q_SIGNALS:
    /// Plus or minus 1 for arrow keys, arrows and wheel, more while an arrow is held down, plus or
    /// minus 10 for page keys.
    void stepTriggered(int steps);
    /// The user has typed.
    void textEdited();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    double m_pageStep = 0.0;
};
