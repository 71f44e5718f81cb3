// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Maps the positions of a slider, 0 to 100000, to integers between two limits, so that equal
/// distances on the slider are equal ratios of the integer.
///
/// A limit of 0 or below has no logarithm: the results are then what floating point makes of it,
/// infinite or not a number.
class LogarithmicScale final
{
public:
    static constexpr int sliderMinimum = 0;
    static constexpr int sliderMaximum = 100000;

    int minimum() const;
    int maximum() const;
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    /// The value at a position, within the limits.
    double valueAt(double position) const;
    /// The position of a value, not bound to the slider's ends.
    double positionOf(double value) const;

private:
    void updateStep();

    int m_minimum = 0;
    int m_maximum = 0;
    double m_log2Minimum = 0.0;
    double m_log2Maximum = 0.0;
    double m_log2PerSliderStep = 0.0;
};

/// What a step of the spin box does on a logarithmic scale.
struct LogarithmicStep
{
    double target = 0.0; ///< where the slider goes
    int shown = 0; ///< what the spin box shows at once
};

/// A step is one percent of `value`, but at least a whole unit. A step up is a little larger than
/// a step down: the target is rounded away from where the step came from.
LogarithmicStep logarithmicStep(double value, int steps);
