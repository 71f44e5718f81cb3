// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "floatslidereditor.h"

#include "editorlog.h"
#include "floattext.h"
#include "integergrid.h"
#include "invalidargument.h"
#include "rangetext.h"
#include "snapshots.h"
#include "vantrelqtdoublespinbox.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parameternode.h"
#include "plugin/services/exceptionbarrier.h"

#include <QScopedValueRollback>
#include <QSlider>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

using namespace ParameterCollection;

namespace {

EditorLog editorLog(Plugin::Tessera::LogCategories::FloatSliderEditor);

constexpr const char *sourceFile = "floatslidereditor";

// What arithmetic leaves over is no difference.
constexpr double tolerance = 100 * std::numeric_limits<double>::epsilon();

template<typename Data> void requireOrder(const Data &snapshot)
{
    if (!(snapshot.minimum <= snapshot.maximum)) {
        throwInvalidArgument(
            FloatSliderEditor::tr("The minimum value is larger than the maximum value!"),
            sourceFile, __LINE__);
    }
    if (!(snapshot.value >= snapshot.minimum && snapshot.value <= snapshot.maximum)) {
        throwInvalidArgument(
            FloatSliderEditor::tr(
                "The minimum allowed value is larger than the to be set node value or the maximum "
                "allowed value is smaller than the to be set node value!"),
            sourceFile, __LINE__);
    }
}

int requireIncrement(int increment)
{
    if (increment == 0) {
        throwInvalidArgument(FloatSliderEditor::tr("The alias increment cannot be '0'!"),
                             sourceFile, __LINE__);
    }
    return increment;
}

// Exposure times span many decades; for everything else a logarithmic slider is of no use.
ETwoModeDoubleComboSliderMode modeFor(const IParameter &parameter)
{
    const QString representation = parameter.node()->property(QStringLiteral("Representation"));
    const bool logarithmic = representation == QLatin1String("Logarithmic")
        && parameter.name().contains(QLatin1String("Exposure"));
    return logarithmic ? ETwoModeDoubleComboSliderMode::Logarithmic
                       : ETwoModeDoubleComboSliderMode::Linear;
}

} // namespace

FloatSliderEditor::FloatSliderEditor(QSharedPointer<IParameterCollection> collection,
                                     QWidget *parent)
    : TwoModeDoubleComboSlider(parent, ETwoModeDoubleComboSliderMode::Linear)
    , m_collection(std::move(collection))
{
    connect(spinBox(), &QAbstractSpinBox::editingFinished, this,
            &FloatSliderEditor::onSpinBoxEditingFinished);
    connect(this, &TwoModeDoubleComboSlider::valueChanged, this,
            &FloatSliderEditor::onSliderValueChanged);
    connect(spinBox(), &VantrelQtDoubleSpinBox::textEdited, this, [this] { m_edited = true; });
    connect(spinBox(), &VantrelQtDoubleSpinBox::stepTriggered, this,
            &FloatSliderEditor::showAnswerToStep, Qt::QueuedConnection);
}

FloatSliderEditor::~FloatSliderEditor() = default;

void FloatSliderEditor::updateEditor(ParameterAndData pair)
{
    const auto snapshot = snapshotOf<FloatParameterData>(pair, Float);
    if (!pair.parameter.objectCast<IFloatParameter>() || !snapshot) {
        editorLog.fault(QStringLiteral("%1 is called with non-float node????").arg(nameOf(pair)));
        return;
    }
    if (!snapshot->isReadable) {
        editorLog.fault(QStringLiteral("Non-readable comboBox: %1??????").arg(nameOf(pair)));
        return;
    }
    m_floatData = snapshot;
    if (passesFocus(*snapshot)) {
        Plugin::Tessera::runGuarded([&] { showSnapshot(pair.parameter); });
    }
}

QVariant FloatSliderEditor::editorValue() const
{
    return clampToNode(spinBox()->value());
}

void FloatSliderEditor::updateToolTip()
{
    if (!m_floatData) {
        return;
    }
    const FloatRangeText text =
        floatRangeText(spinBox()->minimum(), spinBox()->maximum(),
                       m_floatData->hasIncrement ? m_floatData->increment : 0.0,
                       saturatedInt(m_floatData->displayPrecision),
                       floatRangeFlags(m_floatData->minimum, m_floatData->maximum), locale());
    showToolTip(
        text.hasIncrement
            ? tr("Range: %1..%2 (Increment: %3)").arg(text.minimum, text.maximum, text.increment)
            : tr("Range: %1..%2").arg(text.minimum, text.maximum));
}

// An editor that never could show a value has none to commit, unless it was typed.
void FloatSliderEditor::onSpinBoxEditingFinished()
{
    if (!m_initialised && !m_edited) {
        return;
    }
    spinBox()->setValue(clampToNode(spinBox()->value()));
    enableUpdate(true);
    Q_EMIT boxValueChanged();
}

void FloatSliderEditor::onSliderValueChanged(int val)
{
    if (!m_aliasParameter || m_showingAlias) {
        return;
    }
    Plugin::Tessera::runGuarded([&] {
        if (val == m_aliasParameter->value()) {
            return;
        }
        enableUpdate(true);
        const int valid = validIntValue(val);
        m_move.movedTo(valid);
        m_aliasParameter->setValue(valid, true);
    });
}

void FloatSliderEditor::onAliasParameterDataChanged(
    QSharedPointer<const ParameterCollection::ParameterData> ptrParameter)
{
    const auto snapshot = ptrParameter.dynamicCast<const IntegerParameterData>();
    if (!snapshot || !snapshot->isReadable) {
        return;
    }
    m_aliasData = snapshot;
    Plugin::Tessera::runGuarded([&] { showAlias(*snapshot); });
}

// What the user types stays, but a float that turns read-only disables the editor all the same.
bool FloatSliderEditor::passesFocus(const FloatParameterData &snapshot)
{
    if (updateGate().pass()) {
        return true;
    }
    if (isEnabled() && !snapshot.isWritable) {
        setEnabled(false);
    }
    return false;
}

bool FloatSliderEditor::attachNode(const QSharedPointer<IParameter> &parameter)
{
    m_parameter = parameter;
    m_floatParameter = parameter.objectCast<IFloatParameter>();
    if (!m_floatParameter) {
        throwInvalidArgument(tr("Dynamic cast on pNode has gone wrong!"), sourceFile, __LINE__);
    }
    if (m_collection) {
        setMode(modeFor(*parameter));
        findAlias();
    }
    if (!m_aliasParameter || !m_aliasData) {
        throwInvalidArgument(tr("Could not retrieve an alias node on pNode"), sourceFile, __LINE__);
    }
    if (!m_aliasConnected) {
        m_aliasConnected = static_cast<bool>(
            connect(m_aliasParameter.data(), &IParameter::parameterDataChangedDecoupled, this,
                    &FloatSliderEditor::onAliasParameterDataChanged));
    }
    keepLimits(m_floatParameter->minimum(), m_floatParameter->maximum());
    setIntIncrement(lowInt(m_aliasData->increment));
    if (minimum() > maximum()) {
        throwInvalidArgument(
            tr("The given range or increment information of the given pNode is not valid"),
            sourceFile, __LINE__);
    }
    return true;
}

void FloatSliderEditor::findAlias()
{
    const QString aliasName = m_parameter->fullName() + QStringLiteral("/Alias");
    m_aliasParameter = m_collection->parameter(aliasName).objectCast<IIntegerParameter>();
    if (!m_aliasParameter) {
        editorLog.fault(QStringLiteral("Alias node is not of type integer."));
        return;
    }
    m_aliasData = m_aliasParameter->parameterData().dynamicCast<const IntegerParameterData>();
}

void FloatSliderEditor::initialise(const QSharedPointer<IParameter> &parameter)
{
    m_initialised = attachNode(parameter);
    const QScopedValueRollback<bool> showing(m_showingAlias, true);
    initControls(minimum(), maximum(), lowInt(m_aliasData->value), lowInt(m_aliasData->minimum),
                 lowInt(m_aliasData->maximum), intIncrement());
    updateToolTip();
}

void FloatSliderEditor::showSnapshot(const QSharedPointer<IParameter> &parameter)
{
    const auto snapshot = m_floatData;
    if (!m_initialised) {
        initialise(parameter);
    }
    requireOrder(*snapshot);
    showFloat(*snapshot);
}

void FloatSliderEditor::showFloat(const FloatParameterData &snapshot)
{
    const int increment = requireIncrement(lowInt(m_aliasData->increment));
    if (isEnabled() != snapshot.isWritable) {
        setEnabled(snapshot.isWritable);
    }
    const int precision = saturatedInt(snapshot.displayPrecision);
    if (precision != decimals()) {
        setDecimals(precision);
    }
    const bool changed = snapshot.minimum != minimum() || snapshot.maximum != maximum()
        || increment != intIncrement();
    if (changed) {
        setRangeStepAndIncrement(snapshot.minimum, snapshot.maximum, increment);
        updateToolTip();
    }
    const double shown = clampToNode(spinBox()->value());
    if (changed
        || (std::abs(snapshot.value - shown) > tolerance && !spinBox()->shows(snapshot.value))) {
        setValue(snapshot.value);
    }
}

// Wider aliases than an int are not supported: their low half is shown.
void FloatSliderEditor::showAlias(const IntegerParameterData &snapshot)
{
    IntegerParameterData low;
    low.minimum = lowInt(snapshot.minimum);
    low.maximum = lowInt(snapshot.maximum);
    low.value = lowInt(snapshot.value);
    requireOrder(low);
    const int increment = requireIncrement(lowInt(snapshot.increment));
    const QScopedValueRollback<bool> showing(m_showingAlias, true);
    if (isEnabled() != snapshot.isWritable) {
        setEnabled(snapshot.isWritable);
    }
    setRangeStepAndIncrement(lowInt(snapshot.minimum), lowInt(snapshot.maximum), increment);
    updateToolTip();
    const int value = lowInt(snapshot.value);
    const bool overtaken =
        m_aliasParameter && m_move.overtakes(value, slider()->isSliderDown(), *m_aliasParameter);
    if (value != intValue() && !overtaken) {
        enableUpdate(true);
        setIntValue(value);
    }
}

// A logarithmic step shows its whole number over an answer that came while it was written.
void FloatSliderEditor::showAnswerToStep()
{
    Plugin::Tessera::runGuarded([&] {
        if (m_floatParameter && spinBox()->missesAnswer(m_floatParameter->value())) {
            enableUpdate(true);
            m_floatParameter->refresh(true);
        }
    });
}

double FloatSliderEditor::clampToNode(double value) const
{
    double clamped = value;
    Plugin::Tessera::runGuarded([&] {
        if (m_floatParameter) {
            const double minimum = m_floatParameter->minimum();
            clamped = minimum > value ? minimum : std::min(value, m_floatParameter->maximum());
        }
    });
    return clamped;
}
