// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "floateditor.h"

#include "editorlog.h"
#include "integergrid.h"
#include "invalidargument.h"
#include "rangetext.h"
#include "snapshots.h"
#include "vantrelqtdoublespinbox.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/services/exceptionbarrier.h"

#include <QVariant>

using namespace ParameterCollection;

namespace {

EditorLog editorLog(Plugin::Tessera::LogCategories::FloatEditor);

constexpr const char *sourceFile = "floateditor";

double incrementOf(const FloatParameterData &snapshot)
{
    return snapshot.hasIncrement ? snapshot.increment : 0.0;
}

} // namespace

FloatEditor::FloatEditor(QWidget *parent, const QString &representation)
    : DoubleSpinBox(parent, representation)
{
    connect(spinBox(), &QAbstractSpinBox::editingFinished, this,
            &FloatEditor::onSpinBoxEditingFinished);
    connect(spinBox(), &VantrelQtDoubleSpinBox::stepTriggered, this,
            &FloatEditor::onSpinBoxStepTriggered);
    connect(spinBox(), &VantrelQtDoubleSpinBox::stepTriggered, this, &FloatEditor::showAnswerToStep,
            Qt::QueuedConnection);
    connect(spinBox(), &VantrelQtDoubleSpinBox::textEdited, this, [this] { m_edited = true; });
}

// The base deletes the spin box, which may have the focus and then finishes its editing.
FloatEditor::~FloatEditor()
{
    spinBox()->disconnect(this);
}

void FloatEditor::updateEditor(ParameterAndData pair)
{
    m_floatParameter = pair.parameter.objectCast<IFloatParameter>();
    const auto snapshot = snapshotOf<FloatParameterData>(pair, Float);
    if (!m_floatParameter || !snapshot) {
        editorLog.fault(QStringLiteral("%1 is called with non-float node").arg(nameOf(pair)));
        return;
    }
    if (!snapshot->isReadable) {
        editorLog.fault(QStringLiteral("Non-readable comboBox: %1").arg(nameOf(pair)));
        return;
    }
    if (updateGate().pass()) {
        Plugin::Tessera::runGuarded([&] { showSnapshot(pair.parameter, *snapshot); });
    }
}

QVariant FloatEditor::editorValue() const
{
    return clampToNode(spinBox()->value());
}

// Precision 0 whatever the decimals is meant: the tool tip tells how far the range goes.
void FloatEditor::updateToolTip()
{
    showToolTip(0, floatRangeFlags(minimum(), maximum()));
}

// An editor that never could show a value has none to commit, unless it was typed.
void FloatEditor::onSpinBoxEditingFinished()
{
    if (!m_initialised && !m_edited) {
        return;
    }
    enableUpdate(true);
    Q_EMIT boxValueChanged();
}

void FloatEditor::onSpinBoxStepTriggered(int steps)
{
    const QSharedPointer<IFloatParameter> parameter = m_floatParameter; // a write may take it away
    if (increment() == 0.0 || !parameter) {
        return;
    }
    Plugin::Tessera::runGuarded([&] {
        const double target = stepTarget(steps);
        enableUpdate(true);
        parameter->setValue(clampToNode(target));
    });
}

bool FloatEditor::attachParameter(const QSharedPointer<IParameter> &parameter)
{
    m_floatParameter = parameter.objectCast<IFloatParameter>();
    if (!m_floatParameter) {
        resetRange();
        throwInvalidArgument(tr("Dynamic cast on pNode has gone wrong!"), sourceFile, __LINE__);
    }
    return true;
}

void FloatEditor::showSnapshot(const QSharedPointer<IParameter> &parameter,
                               const FloatParameterData &snapshot)
{
    const double step = incrementOf(snapshot);
    if (!m_initialised) {
        m_initialised = attachParameter(parameter);
        initControls(snapshot.minimum, snapshot.maximum, snapshot.value, step);
        updateToolTip();
    }
    if (!(snapshot.minimum <= snapshot.maximum)) { // not-a-number is in no order
        throwInvalidArgument(tr("The minimum value is larger than the maximum value!"), sourceFile,
                             __LINE__);
    }
    if (!(snapshot.value >= snapshot.minimum && snapshot.value <= snapshot.maximum)) {
        throwInvalidArgument(tr("The minimum value is larger than the to be set node value or the "
                                "maximum value is smaller than the to be set node value!"),
                             sourceFile, __LINE__);
    }
    if (isEnabled() != snapshot.isWritable) {
        setEnabled(snapshot.isWritable);
    }
    const int precision = saturatedInt(snapshot.displayPrecision);
    if (precision != decimals()) {
        setDecimals(precision);
    }
    const bool changed = !hasRange(snapshot.minimum, snapshot.maximum, step);
    if (changed) {
        setRangeStepAndIncrement(snapshot.minimum, snapshot.maximum, step);
        updateToolTip();
    }
    if (changed
        || (snapshot.value != clampToNode(spinBox()->value())
            && !spinBox()->shows(snapshot.value))) {
        setValue(snapshot.value);
    }
}

// Where steps come faster than their answers, the answer to the first uses up the gate.
void FloatEditor::showAnswerToStep()
{
    Plugin::Tessera::runGuarded([&] {
        if (increment() > 0.0 && m_floatParameter
            && spinBox()->missesAnswer(m_floatParameter->value())) {
            enableUpdate(true);
            m_floatParameter->refresh(true);
        }
    });
}

double FloatEditor::clampToNode(double value) const
{
    double clamped = value;
    Plugin::Tessera::runGuarded([&] {
        if (m_floatParameter && m_floatParameter->minimum() > value) {
            clamped = m_floatParameter->minimum();
        } else if (m_floatParameter && value > m_floatParameter->maximum()) {
            clamped = m_floatParameter->maximum();
        }
    });
    return clamped;
}

// From the device's value, not from what the box shows. A held arrow may ask for exactly ten steps
// and gets a page then, like a page key.
double FloatEditor::stepTarget(int steps) const
{
    const double current = m_floatParameter->value();
    if (steps == 10) {
        return current + spinBox()->pageStep();
    }
    if (steps == -10) {
        return current - spinBox()->pageStep();
    }
    return steps * increment() + current;
}
