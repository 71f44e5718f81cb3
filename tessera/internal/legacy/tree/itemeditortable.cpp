// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "itemeditortable.h"

#include "featuretreedelegate.h"
#include "featuretreeinodeitem.h"

#include "internal/legacy/editors/checkboxeditor.h"
#include "internal/legacy/editors/enumeditor.h"
#include "internal/legacy/editors/floateditor.h"
#include "internal/legacy/editors/floatslidereditor.h"
#include "internal/legacy/editors/inteditor.h"
#include "internal/legacy/editors/intslidereditor.h"
#include "internal/legacy/editors/toolbuttoneditor.h"
#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/enumparameter.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"

#include <algorithm>
#include <array>

using namespace ParameterCollection;

namespace {

template<typename Parameter, typename Editor, auto commitSignal>
QWidget *makeEditor(const FeatureTreeINodeItem &item, const FeatureTreeDelegate &delegate,
                    QWidget *parent)
{
    if (!item.parameter().objectCast<Parameter>()) {
        return nullptr;
    }
    auto *editor = new Editor(parent);
    QObject::connect(editor, commitSignal, &delegate, &FeatureTreeDelegate::emitCommitData);
    return editor;
}

constexpr auto activated = static_cast<void (QComboBox::*)(int)>(&QComboBox::activated);

bool hasSlider(const FeatureTreeINodeItem &item)
{
    return isSliderRepresentation(representationOf(*item.parameter()));
}

// A float's slider moves an integer that the library offers beside the float.
bool hasSliderAndAlias(const FeatureTreeINodeItem &item)
{
    const QString alias = item.parameter()->fullName() + QLatin1String("/Alias");
    return hasSlider(item) && item.collection()->contains(alias);
}

// The view commits it when it closes.
QWidget *makeIntEditor(const FeatureTreeINodeItem &item, const FeatureTreeDelegate &delegate,
                       QWidget *parent)
{
    Q_UNUSED(delegate)
    return item.parameter().objectCast<IIntegerParameter>() ? new IntEditor(parent) : nullptr;
}

QWidget *makeFloatSliderEditor(const FeatureTreeINodeItem &item,
                               const FeatureTreeDelegate &delegate, QWidget *parent)
{
    if (!item.parameter().objectCast<IFloatParameter>()) {
        return nullptr;
    }
    auto *editor = new FloatSliderEditor(item.collection(), parent);
    QObject::connect(editor, &FloatSliderEditor::boxValueChanged, &delegate,
                     &FeatureTreeDelegate::emitCommitData);
    return editor;
}

QWidget *makeFloatEditor(const FeatureTreeINodeItem &item, const FeatureTreeDelegate &delegate,
                         QWidget *parent)
{
    if (!item.parameter().objectCast<IFloatParameter>()) {
        return nullptr;
    }
    auto *editor = new FloatEditor(parent, representationOf(*item.parameter()));
    QObject::connect(editor, &FloatEditor::boxValueChanged, &delegate,
                     &FeatureTreeDelegate::emitCommitData);
    return editor;
}

constexpr quint32 integers = kindSet(ItemEditorKind::IntegerEdit, ItemEditorKind::IntegerSlider);
constexpr quint32 floats = kindSet(ItemEditorKind::FloatEdit, ItemEditorKind::FloatSlider);

// The order matters: the first row that suits is taken.
constexpr std::array<ItemEditorRow, 7> rows {{
    {integers, hasSlider,
     makeEditor<IIntegerParameter, IntSliderEditor, &ComboSlider::valueChanged>, false},
    {integers, nullptr, makeIntEditor, false},
    {floats, hasSliderAndAlias, makeFloatSliderEditor, true},
    {floats, nullptr, makeFloatEditor, true},
    {kindSet(ItemEditorKind::EnumCombo), nullptr, makeEditor<IEnumParameter, EnumEditor, activated>,
     false},
    {kindSet(ItemEditorKind::BooleanCheck), nullptr,
     makeEditor<IBooleanParameter, CheckBoxEditor, &QAbstractButton::clicked>, false},
    {kindSet(ItemEditorKind::CommandButton), nullptr,
     makeEditor<ICommandParameter, ToolButtonEditor, &QAbstractButton::clicked>, false},
}};

} // namespace

const ItemEditorRow *itemEditorRowFor(const FeatureTreeINodeItem &item)
{
    const quint32 kind = kindSet(item.editorKind());
    const auto *row = std::find_if(rows.begin(), rows.end(), [&](const ItemEditorRow &candidate) {
        return (candidate.kinds & kind) != 0 && (!candidate.suits || candidate.suits(item));
    });
    return row == rows.end() ? nullptr : row;
}
