// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "logarithmicscale.h"

#include "integergrid.h"

#include <algorithm>
#include <cmath>

int LogarithmicScale::minimum() const
{
    return m_minimum;
}

int LogarithmicScale::maximum() const
{
    return m_maximum;
}

void LogarithmicScale::setMinimum(int minimum)
{
    m_minimum = minimum;
    m_log2Minimum = std::log2(static_cast<double>(minimum));
    updateStep();
}

void LogarithmicScale::setMaximum(int maximum)
{
    m_maximum = maximum;
    m_log2Maximum = std::log2(static_cast<double>(maximum));
    updateStep();
}

double LogarithmicScale::valueAt(double position) const
{
    // Rounding must not keep the slider's end from the last value.
    if (position >= sliderMaximum) {
        return static_cast<double>(m_maximum);
    }
    const double value =
        std::exp2((position - sliderMinimum) * m_log2PerSliderStep + m_log2Minimum);
    const auto minimum = static_cast<double>(m_minimum);
    return minimum > value ? minimum : std::min(static_cast<double>(m_maximum), value);
}

double LogarithmicScale::positionOf(double value) const
{
    return (std::log2(value) - m_log2Minimum) / m_log2PerSliderStep + sliderMinimum;
}

void LogarithmicScale::updateStep()
{
    m_log2PerSliderStep = (m_log2Maximum - m_log2Minimum) / (sliderMaximum - sliderMinimum);
}

LogarithmicStep logarithmicStep(double value, int steps)
{
    double delta = value * 0.01 * steps;
    if (std::abs(delta) < 1.0) {
        delta += delta < 0.0 ? -1.0 : 1.0;
    }
    LogarithmicStep step;
    step.target = delta + value + 0.5;
    step.shown = truncatedInt(delta < 0.0 ? std::floor(step.target) : std::ceil(step.target));
    return step;
}
