// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "intslidereditor.h"

#include "editorlog.h"
#include "integergrid.h"
#include "snapshots.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/services/exceptionbarrier.h"

#include <QSlider>
#include <QVariant>

using namespace ParameterCollection;

namespace {

EditorLog editorLog(Plugin::Tessera::LogCategories::IntSliderEditor);

// Contradictions are reported only; the widgets make of them what they can.
void reportContradictions(int value, int minimum, int maximum, const ParameterAndData &pair)
{
    if (minimum > maximum) {
        editorLog.fault(QStringLiteral("Feature %1: min value %2 > max value %3???")
                            .arg(nameOf(pair), QString::number(minimum), QString::number(maximum)));
    }
    if (value < minimum || value > maximum) {
        editorLog.fault(QStringLiteral("Feature %1: value %2 out of range??? min = %3, max = %4")
                            .arg(nameOf(pair), QString::number(value), QString::number(minimum),
                                 QString::number(maximum)));
    }
}

} // namespace

// The move is noted before the delegate hears of it and writes.
IntSliderEditor::IntSliderEditor(QWidget *parent)
    : ComboSlider(parent)
{
    connect(this, &ComboSlider::valueChanged, this, [this](int value) { m_move.movedTo(value); });
}

IntSliderEditor::~IntSliderEditor() = default;

void IntSliderEditor::updateEditor(ParameterAndData pair)
{
    Plugin::Tessera::runGuarded([&] {
        const auto snapshot = snapshotOf<IntegerParameterData>(pair, Integer);
        if (!snapshot) {
            editorLog.fault(
                QStringLiteral("%1 is called with non-integer node????").arg(nameOf(pair)));
            return;
        }
        if (!snapshot->isReadable) {
            editorLog.fault(QStringLiteral("Non-readable slider: %1??????").arg(nameOf(pair)));
            return;
        }
        showSnapshot(*snapshot, pair);
    });
}

QVariant IntSliderEditor::editorValue() const
{
    return value();
}

void IntSliderEditor::showSnapshot(const IntegerParameterData &snapshot,
                                   const ParameterAndData &pair)
{
    const int newMinimum = saturatedInt(snapshot.minimum);
    const int newMaximum = saturatedInt(snapshot.maximum);
    const int newValue = saturatedInt(snapshot.value);
    const int increment = saturatedInt(snapshot.increment);
    reportContradictions(newValue, newMinimum, newMaximum, pair);
    if (isEnabled() != snapshot.isWritable) {
        setEnabled(snapshot.isWritable);
    }
    const bool rangeChanged =
        newMinimum != minimum() || newMaximum != maximum() || increment != singleStep();
    if (rangeChanged) {
        setRangeAndStep(newMinimum, newMaximum, increment);
    }
    const bool overtaken = isOvertaken(newValue, pair);
    if (rangeChanged || (newValue != value() && !overtaken)) {
        setValue(newValue);
    }
    setPageStep(pageStepFor(newMinimum, newMaximum, increment));
}

bool IntSliderEditor::isOvertaken(int newValue, const ParameterAndData &pair)
{
    const auto integer = pair.parameter.objectCast<IIntegerParameter>();
    return integer && m_move.overtakes(newValue, slider()->isSliderDown(), *integer);
}
