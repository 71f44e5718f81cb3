// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "inteditor.h"

#include "editorlog.h"
#include "integergrid.h"
#include "rangetext.h"
#include "snapshots.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/services/exceptionbarrier.h"

#include <QVariant>

#include <algorithm>
#include <initializer_list>

using namespace ParameterCollection;

namespace {

EditorLog editorLog(Plugin::Tessera::LogCategories::IntEditor);

enum class TipForm { None, Decimal, Hexadecimal, Unknown };

TipForm tipForm(const QString &representation)
{
    const auto isOneOf = [&](std::initializer_list<const char *> words) {
        return std::any_of(words.begin(), words.end(),
                           [&](const char *word) { return representation == QLatin1String(word); });
    };
    if (isOneOf({"HexNumber"})) {
        return TipForm::Hexadecimal;
    }
    if (isOneOf({"PureNumber", "Linear", "Logarithmic"})) {
        return TipForm::Decimal;
    }
    return isOneOf({"IPV4Address", "Boolean", "MACAddress"}) ? TipForm::None : TipForm::Unknown;
}

} // namespace

IntEditor::IntEditor(QWidget *parent)
    : QLineEdit(parent)
{
    setFrame(false);
    setContentsMargins(1, 0, 1, 0);
}

IntEditor::~IntEditor() = default;

void IntEditor::updateEditor(ParameterAndData pair)
{
    Plugin::Tessera::runGuarded([&] {
        const auto snapshot = snapshotOf<IntegerParameterData>(pair, Integer);
        if (!pair.parameter.objectCast<IIntegerParameter>() || !snapshot) {
            editorLog.fault(QStringLiteral(" is called with non-integer node????"));
            return;
        }
        if (!snapshot->isReadable) {
            setText(tr("<not readable>"));
            setToolTip(QString());
            return;
        }
        showSnapshot(*snapshot);
    });
}

QVariant IntEditor::editorValue() const
{
    return text();
}

bool IntEditor::showsNotReadable() const
{
    return !isModified() && text() == tr("<not readable>");
}

// What was typed gives way: the parameter's text wins.
void IntEditor::showSnapshot(const IntegerParameterData &snapshot)
{
    const int base = tipForm(snapshot.representation) == TipForm::Hexadecimal ? 16 : 10;
    const QString minimum = limitText(saturatedInt(snapshot.minimum), base);
    const QString maximum = limitText(saturatedInt(snapshot.maximum), base);
    switch (tipForm(snapshot.representation)) {
    case TipForm::Hexadecimal:
        setText(snapshot.valueText);
        setToolTip(tr("Range: 0x%1..0x%2").arg(minimum, maximum));
        break;
    case TipForm::Decimal:
        setText(snapshot.valueText);
        setToolTip(tr("Range: %1..%2").arg(minimum, maximum));
        break;
    case TipForm::None:
        setValidator(nullptr);
        setText(snapshot.valueText);
        setToolTip(QString());
        break;
    case TipForm::Unknown:
        editorLog.fault(QStringLiteral("Unexpected representation."));
        break;
    }
}
