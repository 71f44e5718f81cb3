// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "doublespinbox.h"

#include "floattext.h"
#include "rangetext.h"
#include "spinboxeventcatcher.h"
#include "vantrelqtdoublespinbox.h"

#include <QHBoxLayout>

#include <algorithm>

DoubleSpinBox::DoubleSpinBox(QWidget *parent, const QString &representation)
    : QWidget(parent)
    , m_spinBox(new VantrelQtDoubleSpinBox(this))
    , m_eventCatcher(new SpinBoxEventCatcher)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    setContentsMargins(1, 0, 1, 0);
    m_spinBox->setAccelerated(true);
    if (representation == QLatin1String("PureNumber")) {
        m_spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    }
    m_spinBox->installEventFilter(m_eventCatcher);
    connect(m_eventCatcher, &SpinBoxEventCatcher::focusEvent, this,
            &DoubleSpinBox::onSpinBoxFocusEventTriggered);
    layout->addWidget(m_spinBox);
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_spinBox);
}

DoubleSpinBox::~DoubleSpinBox()
{
    delete m_spinBox;
    delete m_eventCatcher;
}

double DoubleSpinBox::minimum() const
{
    return m_hasRange ? m_spinBox->minimum() : m_minimum;
}

double DoubleSpinBox::maximum() const
{
    return m_hasRange ? m_spinBox->maximum() : m_maximum;
}

int DoubleSpinBox::decimals() const
{
    return m_spinBox->decimals();
}

double DoubleSpinBox::increment() const
{
    return m_increment;
}

int DoubleSpinBox::editBoxWidth() const
{
    return m_editBoxWidth;
}

void DoubleSpinBox::setEditBoxWidth(int width)
{
    m_editBoxWidth = width;
    m_spinBox->setMinimumWidth(width);
}

// Qt writes out the digits of every limit, of which the widest have more than three hundred each:
// a box gets them only where nobody gives it others first.
void DoubleSpinBox::ensureRange()
{
    if (!m_hasRange) {
        m_hasRange = true;
        m_spinBox->setRange(m_minimum, m_maximum);
    }
}

void DoubleSpinBox::showEvent(QShowEvent *event)
{
    ensureRange();
    QWidget::showEvent(event);
}

void DoubleSpinBox::setValue(double value)
{
    ensureRange();
    m_spinBox->setValue(value);
}

void DoubleSpinBox::setMinimum(double minimum)
{
    ensureRange();
    m_spinBox->setMinimum(minimum);
    updateToolTip();
}

void DoubleSpinBox::setMaximum(double maximum)
{
    ensureRange();
    m_spinBox->setMaximum(maximum);
    updateToolTip();
}

void DoubleSpinBox::setDecimals(int decimals)
{
    m_spinBox->setDecimals(decimals);
    updateToolTip();
}

void DoubleSpinBox::setIncrement(double increment)
{
    m_increment = increment;
}

void DoubleSpinBox::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    m_hasRange = true;
    m_spinBox->setRange(minimum, maximum);
    updateToolTip();
}

void DoubleSpinBox::setPageStep()
{
    m_spinBox->setPageStep(std::max(2 * m_increment, (m_maximum - m_minimum) / 20.0));
}

void DoubleSpinBox::setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit,
                                             double increment)
{
    setRange(minRangeLimit, maxRangeLimit);
    setIncrement(increment);
    setPageStep();
    // One way on purpose: arrows that come and go would move the digits beside them.
    if (increment == 0.0) {
        m_spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    }
}

void DoubleSpinBox::initControls(double minRangeLimit, double maxRangeLimit, double value,
                                 double increment)
{
    if (!m_hasRange) { // no limit of the box's own is to stand between it and the value
        m_hasRange = true;
        m_spinBox->setRange(std::min(minRangeLimit, value), std::max(maxRangeLimit, value));
    }
    setValue(value);
    setRangeStepAndIncrement(minRangeLimit, maxRangeLimit, increment);
}

void DoubleSpinBox::updateToolTip()
{
    showToolTip(m_spinBox->decimals(), StripTrailingZeros);
}

void DoubleSpinBox::onSpinBoxFocusEventTriggered(bool focus)
{
    m_updateGate.setFocused(focus);
}

void DoubleSpinBox::enableUpdate(bool enable)
{
    m_updateGate.setOpen(enable);
}

VantrelQtDoubleSpinBox *DoubleSpinBox::spinBox() const
{
    return m_spinBox;
}

UpdateGate &DoubleSpinBox::updateGate()
{
    return m_updateGate;
}

bool DoubleSpinBox::hasRange(double minimum, double maximum, double increment) const
{
    return minimum == m_minimum && maximum == m_maximum && increment == m_increment;
}

void DoubleSpinBox::resetRange()
{
    m_increment = 0.0;
    m_minimum = 0.0;
    m_maximum = 0.0;
}

void DoubleSpinBox::showToolTip(int precision, int flags)
{
    const FloatRangeText text = floatRangeText(m_spinBox->minimum(), m_spinBox->maximum(),
                                               m_increment, precision, flags, locale());
    const QString toolTip = text.hasIncrement
        ? tr("Range: %1..%2 (Increment: %3)").arg(text.minimum, text.maximum, text.increment)
        : tr("Range: %1..%2").arg(text.minimum, text.maximum);
    m_spinBox->setToolTip(toolTip);
    setToolTip(toolTip);
}
