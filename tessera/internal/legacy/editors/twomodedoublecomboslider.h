// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "doublecomboslider.h"
#include "logarithmicscale.h"

#include <QMetaType>

#include <optional>

/// How the slider's positions stand for the integer.
enum class ETwoModeDoubleComboSliderMode : qint32 {
    Linear = 0, ///< the position is the integer
    Logarithmic = 1, ///< positions 0 to 100000 are mapped by `LogarithmicScale`
};

Q_DECLARE_METATYPE(ETwoModeDoubleComboSliderMode)

/// `DoubleComboSlider` with a logarithmic mode besides the linear one.
class TwoModeDoubleComboSlider : public DoubleComboSlider
{
    Q_OBJECT

public:
    TwoModeDoubleComboSlider(QWidget *parent, ETwoModeDoubleComboSliderMode mode);
    ~TwoModeDoubleComboSlider() override;

    /// The integer. In logarithmic mode the one set last, once; after that what the position
    /// stands for.
    int intValue();
    /// The grid point for an integer.
    int validIntValue(int value) const;
    /// The two directions of the logarithmic map.
    double sliderToInt(double position) const;
    double intToSlider(double value) const;

    void setIntValue(int value) override;
    void setIntMinimum(int minimum) override;
    void setIntMaximum(int maximum) override;
    void setIntRange(int minimum, int maximum) override;
    void setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit,
                                  int intIncrement) override;
    void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit,
                                  int intIncrement) override;
    void initControls(double minRangeLimit, double maxRangeLimit, int value, int minIntRangeLimit,
                      int maxIntRangeLimit, int intIncrement) override;

public Q_SLOTS:
    /// Takes effect with the next range and value.
    void setMode(ETwoModeDoubleComboSliderMode value);
    /// In logarithmic mode a step is one percent and shown at once.
    void onSpinBoxStepTriggered(int val);
    void onSpinBoxEditingFinished();
    void onSliderValueChanged(int val);

Q_SIGNALS:
    void editingFinished();
    /// The integer for the slider's new position.
    void valueChanged(int value);

private:
    bool isLogarithmic() const;

    ETwoModeDoubleComboSliderMode m_mode;
    LogarithmicScale m_scale;
    // Position and integer do not determine each other: what was put in comes out unchanged.
    std::optional<int> m_pendingIntValue;
};
