// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "twomodedoublecomboslider.h"

#include "integergrid.h"
#include "vantrelqtdoublespinbox.h"

#include <QSlider>

#include <utility>

TwoModeDoubleComboSlider::TwoModeDoubleComboSlider(QWidget *parent,
                                                   ETwoModeDoubleComboSliderMode mode)
    : DoubleComboSlider(parent)
    , m_mode(mode)
{
    disconnect(spinBox(), &VantrelQtDoubleSpinBox::stepTriggered, this,
               &DoubleComboSlider::onSpinBoxStepTriggered);
    connect(spinBox(), &VantrelQtDoubleSpinBox::stepTriggered, this,
            &TwoModeDoubleComboSlider::onSpinBoxStepTriggered);
    connect(spinBox(), &QAbstractSpinBox::editingFinished, this,
            &TwoModeDoubleComboSlider::onSpinBoxEditingFinished);
    connect(slider(), &QSlider::valueChanged, this,
            &TwoModeDoubleComboSlider::onSliderValueChanged);
}

// The base deletes the children, of which one may have the focus and then finishes its editing.
TwoModeDoubleComboSlider::~TwoModeDoubleComboSlider()
{
    slider()->disconnect(this);
    spinBox()->disconnect(this);
}

int TwoModeDoubleComboSlider::intValue()
{
    if (!isLogarithmic()) {
        return slider()->value();
    }
    const auto pending = std::exchange(m_pendingIntValue, std::nullopt);
    return pending ? *pending : truncatedInt(sliderToInt(slider()->value()));
}

int TwoModeDoubleComboSlider::validIntValue(int value) const
{
    if (isLogarithmic()) {
        return onGrid(value, m_scale.minimum(), intIncrement());
    }
    return slider()->singleStep() == 0 ? value : onGrid(value, slider()->minimum(), intIncrement());
}

double TwoModeDoubleComboSlider::sliderToInt(double position) const
{
    return m_scale.valueAt(position);
}

double TwoModeDoubleComboSlider::intToSlider(double value) const
{
    return m_scale.positionOf(value);
}

void TwoModeDoubleComboSlider::setIntValue(int value)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::setIntValue(value);
        return;
    }
    m_pendingIntValue = value;
    slider()->setValue(truncatedInt(intToSlider(value)));
}

void TwoModeDoubleComboSlider::setIntMinimum(int minimum)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::setIntMinimum(minimum);
        return;
    }
    m_scale.setMinimum(minimum);
    Q_EMIT rangeChanged(minimum, m_scale.maximum());
    updateToolTip();
}

void TwoModeDoubleComboSlider::setIntMaximum(int maximum)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::setIntMaximum(maximum);
        return;
    }
    m_scale.setMaximum(maximum);
    Q_EMIT rangeChanged(m_scale.minimum(), maximum);
    updateToolTip();
}

// The slider keeps its own scale.
void TwoModeDoubleComboSlider::setIntRange(int minimum, int maximum)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::setIntRange(minimum, maximum);
        return;
    }
    m_scale.setMinimum(minimum);
    m_scale.setMaximum(maximum);
    Q_EMIT rangeChanged(minimum, maximum);
    updateToolTip();
}

void TwoModeDoubleComboSlider::setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit,
                                                        int intIncrement)
{
    DoubleComboSlider::setRangeStepAndIncrement(minIntRangeLimit, maxIntRangeLimit, intIncrement);
}

void TwoModeDoubleComboSlider::setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit,
                                                        int intIncrement)
{
    DoubleComboSlider::setRangeStepAndIncrement(minRangeLimit, maxRangeLimit, intIncrement);
}

void TwoModeDoubleComboSlider::initControls(double minRangeLimit, double maxRangeLimit, int value,
                                            int minIntRangeLimit, int maxIntRangeLimit,
                                            int intIncrement)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::initControls(minRangeLimit, maxRangeLimit, value, minIntRangeLimit,
                                        maxIntRangeLimit, intIncrement);
        return;
    }
    setRange(minRangeLimit, maxRangeLimit);
    slider()->setSingleStep(1);
    slider()->setRange(LogarithmicScale::sliderMinimum, LogarithmicScale::sliderMaximum);
    setRangeStepAndIncrement(minIntRangeLimit, maxIntRangeLimit, intIncrement);
    setIntValue(value);
}

void TwoModeDoubleComboSlider::setMode(ETwoModeDoubleComboSliderMode value)
{
    m_mode = value;
}

void TwoModeDoubleComboSlider::onSpinBoxStepTriggered(int val)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::onSpinBoxStepTriggered(val);
        return;
    }
    const LogarithmicStep step = logarithmicStep(spinBox()->value(), val);
    slider()->setValue(truncatedInt(intToSlider(step.target)));
    setValue(step.shown);
    enableUpdate(true);
}

void TwoModeDoubleComboSlider::onSpinBoxEditingFinished()
{
    Q_EMIT editingFinished();
}

void TwoModeDoubleComboSlider::onSliderValueChanged(int val)
{
    if (!isLogarithmic()) {
        Q_EMIT valueChanged(val);
        return;
    }
    const auto pending = std::exchange(m_pendingIntValue, std::nullopt);
    Q_EMIT valueChanged(pending ? *pending : truncatedInt(sliderToInt(val)));
}

bool TwoModeDoubleComboSlider::isLogarithmic() const
{
    return m_mode == ETwoModeDoubleComboSliderMode::Logarithmic;
}
