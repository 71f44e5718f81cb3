// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "itemeditorkind.h"

#include "parameterproperties.h"

#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/parameternode.h"
#include "plugin/services/exceptionbarrier.h"

namespace {

bool hasSlider(const ParameterCollection::IParameter &parameter)
{
    return isSliderRepresentation(representationOf(parameter));
}

qint32 kindOf(const ParameterCollection::IParameter &parameter)
{
    using namespace ItemEditorKind;
    switch (parameter.type()) {
    case ParameterCollection::Integer:
        return hasSlider(parameter) ? IntegerSlider : IntegerEdit;
    case ParameterCollection::Float:
        return hasSlider(parameter) ? FloatSlider : FloatEdit;
    case ParameterCollection::Enumeration:
        return EnumCombo;
    case ParameterCollection::Boolean:
        return BooleanCheck;
    case ParameterCollection::String:
        return StringEdit;
    case ParameterCollection::Command:
        return CommandButton;
    case ParameterCollection::None:
    case ParameterCollection::Category:
    case ParameterCollection::Other:
        break;
    }
    return NoEditor;
}

} // namespace

bool hasInlineEditor(qint32 editorKind)
{
    using namespace ItemEditorKind;
    constexpr quint32 textKinds =
        1U << IntegerEdit | 1U << StringEdit | 1U << ReservedFloatEdit | 1U << NoEditor;
    return editorKind > NoEditor || (textKinds >> editorKind & 1U) == 0;
}

bool isFloatKind(qint32 editorKind)
{
    using namespace ItemEditorKind;
    return editorKind == FloatEdit || editorKind == FloatSlider || editorKind == ReservedFloatEdit
        || editorKind == ReservedFloatSlider;
}

qint32 editorKindFor(const ParameterCollection::IParameter &parameter)
{
    qint32 kind = ItemEditorKind::NoEditor;
    Plugin::Tessera::runGuarded([&] { kind = kindOf(parameter); });
    return kind;
}

QString representationOf(const ParameterCollection::IParameter &parameter)
{
    const QSharedPointer<ParameterCollection::IParameterNode> node = parameter.node();
    return node ? node->property(QLatin1String(ParameterProperties::Representation)) : QString();
}

bool isSliderRepresentation(const QString &representation)
{
    return representation == QLatin1String("Linear")
        || representation == QLatin1String("Logarithmic");
}
