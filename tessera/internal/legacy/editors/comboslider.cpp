// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "comboslider.h"

#include "cellslider.h"
#include "editorlog.h"
#include "integergrid.h"
#include "rangetext.h"
#include "sliderlayout.h"
#include "vantrelqtspinbox.h"

#include "plugin/constants/logcategories.h"
#include "plugin/services/exceptionbarrier.h"

#include <QScopedValueRollback>

namespace {

EditorLog editorLog(Plugin::Tessera::LogCategories::ComboSlider);

} // namespace

ComboSlider::ComboSlider(QWidget *parent)
    : QWidget(parent)
    , m_spinBox(new VantrelQtSpinBox(this))
    , m_slider(new CellSlider(this))
{
    m_editBoxWidth = layOutSlider(this, m_spinBox, m_slider);
    connect(m_slider, &QSlider::valueChanged, this, &ComboSlider::onSliderValueChanged);
    connect(m_spinBox, &QSpinBox::editingFinished, this, &ComboSlider::onComboBoxEditingFinished);
    ComboSlider::updateToolTip();
}

// The base deletes the children, of which one may have the focus and then finishes its editing.
ComboSlider::~ComboSlider()
{
    m_slider->disconnect(this);
    m_spinBox->disconnect(this);
}

int ComboSlider::value() const
{
    return m_slider->value();
}

int ComboSlider::minimum() const
{
    return m_slider->minimum();
}

int ComboSlider::maximum() const
{
    return m_slider->maximum();
}

int ComboSlider::singleStep() const
{
    return m_slider->singleStep();
}

int ComboSlider::pageStep() const
{
    return m_slider->pageStep();
}

int ComboSlider::editBoxWidth() const
{
    return m_editBoxWidth;
}

void ComboSlider::setValue(int value)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setValue(validValue(value));
}

void ComboSlider::setMinimum(int minimum)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setMinimum(minimum);
    m_spinBox->setMinimum(minimum);
    Q_EMIT rangeChanged(minimum, m_spinBox->maximum());
    updateToolTip();
}

void ComboSlider::setMaximum(int maximum)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setMaximum(maximum);
    m_spinBox->setMaximum(maximum);
    Q_EMIT rangeChanged(m_spinBox->minimum(), maximum);
    updateToolTip();
}

void ComboSlider::setRange(int minimum, int maximum)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setMinimum(minimum);
    m_spinBox->setMinimum(minimum);
    m_slider->setMaximum(maximum);
    m_spinBox->setMaximum(maximum);
    Q_EMIT rangeChanged(minimum, maximum);
    updateToolTip();
}

void ComboSlider::setRangeAndStep(int minimum, int maximum, int step)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_spinBox->setSingleStep(step);
    m_spinBox->setMinimum(minimum);
    m_spinBox->setMaximum(maximum);
    m_slider->setSingleStep(step);
    m_slider->setMinimum(minimum);
    m_slider->setMaximum(maximum);
    Q_EMIT rangeChanged(minimum, maximum);
    updateToolTip();
}

void ComboSlider::setSingleStep(int step)
{
    m_slider->setSingleStep(step);
    m_spinBox->setSingleStep(step);
    updateToolTip();
}

void ComboSlider::setPageStep(int step)
{
    m_slider->setPageStep(step);
    m_spinBox->setPageStep(step);
    updateToolTip();
}

void ComboSlider::updateToolTip()
{
    const auto makeToolTip = [this] {
        const QString minimum = limitText(m_spinBox->minimum(), 10);
        const QString maximum = limitText(m_spinBox->maximum(), 10);
        const int step = m_spinBox->singleStep();
        setToolTip(
            step == 1
                ? tr("Range: %1..%2").arg(minimum, maximum)
                : tr("Range: %1..%2 (Increment: %3)").arg(minimum, maximum, limitText(step, 10)));
    };
    Plugin::Tessera::runGuarded(makeToolTip, [](const Plugin::Tessera::CaughtException &e) {
        editorLog.fault(QStringLiteral("Error creating tooltip text! Err='%1'").arg(e.message));
    });
}

void ComboSlider::setEditBoxWidth(int width)
{
    m_editBoxWidth = width;
    m_spinBox->setMinimumWidth(width);
}

void ComboSlider::enableUpdate(bool enable)
{
    m_updateEnabled = enable;
}

void ComboSlider::onComboBoxEditingFinished()
{
    const int valid = validValue(m_spinBox->value());
    if (valid != m_spinBox->value()) {
        m_spinBox->setValue(valid);
    }
    m_slider->setValue(valid);
}

void ComboSlider::onSliderValueChanged(int val)
{
    const int valid = validValue(val);
    if (valid != m_spinBox->value()) {
        m_spinBox->setValue(valid);
    }
    if (valid != val) {
        m_slider->setValue(valid); // comes back here with the grid point
        return;
    }
    if (m_updateEnabled) {
        Q_EMIT valueChanged(val);
    }
}

bool ComboSlider::focusNextPrevChild(bool next)
{
    return focusOtherPart(m_spinBox, m_slider, next) || QWidget::focusNextPrevChild(next);
}

QSlider *ComboSlider::slider() const
{
    return m_slider;
}

int ComboSlider::validValue(int value) const
{
    const int bound = qBound(m_slider->minimum(), value, m_slider->maximum());
    return onGrid(bound, m_spinBox->minimum(), m_spinBox->singleStep());
}
