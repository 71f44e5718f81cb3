// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "itemeditortable.h"

#include "featuretreedelegate.h"
#include "featuretreeinodeitem.h"

#include "internal/legacy/editors/checkboxeditor.h"
#include "internal/legacy/editors/enumeditor.h"
#include "internal/legacy/editors/toolbuttoneditor.h"
#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/enumparameter.h"

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

// The order matters: the first row that suits is taken.
constexpr std::array<ItemEditorRow, 3> rows {{
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
