// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "doublecomboslider.h"

#include "cellslider.h"
#include "floattext.h"
#include "integergrid.h"
#include "sliderlayout.h"
#include "spinboxeventcatcher.h"
#include "vantrelqtdoublespinbox.h"

#include <limits>

DoubleComboSlider::DoubleComboSlider(QWidget *parent)
    : QWidget(parent)
    , m_slider(new CellSlider(this))
    , m_spinBox(new VantrelQtDoubleSpinBox(this))
    , m_eventCatcher(new SpinBoxEventCatcher)
{
    m_editBoxWidth = layOutSlider(this, m_spinBox, m_slider);
    m_spinBox->setAccelerated(true);
    m_spinBox->installEventFilter(m_eventCatcher);
    m_slider->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    connect(m_spinBox, &VantrelQtDoubleSpinBox::stepTriggered, this,
            &DoubleComboSlider::onSpinBoxStepTriggered);
    connect(m_eventCatcher, &SpinBoxEventCatcher::focusEvent, this,
            &DoubleComboSlider::onSpinBoxFocusEventTriggered);
}

DoubleComboSlider::~DoubleComboSlider()
{
    delete m_slider;
    delete m_spinBox;
    delete m_eventCatcher;
}

int DoubleComboSlider::intValue() const
{
    return m_slider->value();
}

double DoubleComboSlider::minimum() const
{
    return m_minimum;
}

int DoubleComboSlider::intMinimum() const
{
    return m_slider->minimum();
}

double DoubleComboSlider::maximum() const
{
    return m_maximum;
}

int DoubleComboSlider::intMaximum() const
{
    return m_slider->maximum();
}

int DoubleComboSlider::decimals() const
{
    return m_spinBox->decimals();
}

int DoubleComboSlider::intIncrement() const
{
    return m_intIncrement;
}

int DoubleComboSlider::editBoxWidth() const
{
    return m_editBoxWidth;
}

void DoubleComboSlider::setEditBoxWidth(int width)
{
    m_editBoxWidth = width;
    m_spinBox->setMinimumWidth(width);
}

double DoubleComboSlider::value() const
{
    return m_spinBox->value();
}

void DoubleComboSlider::setValue(double value)
{
    m_spinBox->setValue(value);
}

void DoubleComboSlider::setIntValue(int value)
{
    m_slider->setValue(value);
}

// The tool tip is made before the box has the limit, other than in setMaximum; this is meant.
void DoubleComboSlider::setMinimum(double minimum)
{
    m_minimum = minimum;
    updateToolTip();
    m_spinBox->setMinimum(minimum);
}

void DoubleComboSlider::setIntMinimum(int minimum)
{
    m_slider->setMinimum(minimum);
    updateToolTip();
    Q_EMIT rangeChanged(minimum, m_slider->maximum());
}

void DoubleComboSlider::setMaximum(double maximum)
{
    m_maximum = maximum;
    m_spinBox->setMaximum(maximum);
    updateToolTip();
}

void DoubleComboSlider::setIntMaximum(int maximum)
{
    m_slider->setMaximum(maximum);
    updateToolTip();
    Q_EMIT rangeChanged(m_slider->minimum(), maximum);
}

void DoubleComboSlider::setDecimals(int decimals)
{
    m_spinBox->setDecimals(decimals);
    updateToolTip();
}

void DoubleComboSlider::setRange(double minimum, double maximum)
{
    keepLimits(minimum, maximum);
    m_spinBox->setRange(minimum, maximum);
    updateToolTip();
}

void DoubleComboSlider::setIntRange(int minimum, int maximum)
{
    m_slider->setRange(minimum, maximum);
    updateToolTip();
    Q_EMIT rangeChanged(minimum, maximum);
}

void DoubleComboSlider::setIntIncrement(int increment)
{
    m_intIncrement = increment;
}

void DoubleComboSlider::setPageStep()
{
    const int minimum = m_slider->minimum();
    int page = pageStepFor(minimum, m_slider->maximum(), m_intIncrement);
    if (m_slider->singleStep() != 0) {
        page = onGrid(page, minimum, m_intIncrement);
    }
    m_slider->setPageStep(page);
    updateToolTip();
}

void DoubleComboSlider::setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit,
                                                 int intIncrement)
{
    setIntRange(minIntRangeLimit, maxIntRangeLimit);
    setIntIncrement(intIncrement);
    setPageStep();
}

void DoubleComboSlider::setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit,
                                                 int intIncrement)
{
    setRange(minRangeLimit, maxRangeLimit);
    setIntIncrement(intIncrement);
    setPageStep();
}

void DoubleComboSlider::initControls(double minRangeLimit, double maxRangeLimit, int value,
                                     int minIntRangeLimit, int maxIntRangeLimit, int intIncrement)
{
    setRange(minRangeLimit, maxRangeLimit);
    m_slider->setSingleStep(intIncrement);
    setIntValue(value);
    setRangeStepAndIncrement(minIntRangeLimit, maxIntRangeLimit, intIncrement);
}

void DoubleComboSlider::updateToolTip()
{
    const auto text = [this](double limit) {
        return formatFloat(limit, m_spinBox->decimals(), StripTrailingZeros, locale());
    };
    showToolTip(tr("Range: %1..%2").arg(text(m_spinBox->minimum()), text(m_spinBox->maximum())));
}

void DoubleComboSlider::onSpinBoxStepTriggered(int steps)
{
    const int current = m_slider->value();
    const int page = m_slider->pageStep();
    enableUpdate(true);
    if (steps == 10) {
        m_slider->setValue(movedBy(current, 1, page));
    } else if (steps == -10) {
        m_slider->setValue(movedBy(current, -1, page));
    } else {
        m_slider->setValue(movedBy(current, steps, m_intIncrement));
    }
}

void DoubleComboSlider::onSpinBoxFocusEventTriggered(bool focus)
{
    m_updateGate.setFocused(focus);
}

void DoubleComboSlider::enableUpdate(bool enable)
{
    m_updateGate.setOpen(enable);
}

bool DoubleComboSlider::focusNextPrevChild(bool next)
{
    return focusOtherPart(m_spinBox, m_slider, next) || QWidget::focusNextPrevChild(next);
}

QSlider *DoubleComboSlider::slider() const
{
    return m_slider;
}

VantrelQtDoubleSpinBox *DoubleComboSlider::spinBox() const
{
    return m_spinBox;
}

UpdateGate &DoubleComboSlider::updateGate()
{
    return m_updateGate;
}

void DoubleComboSlider::keepLimits(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
}

void DoubleComboSlider::showToolTip(const QString &toolTip)
{
    m_slider->setToolTip(toolTip);
    m_spinBox->setToolTip(toolTip);
    setToolTip(toolTip);
}
