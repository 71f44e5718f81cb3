// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "checkboxeditor.h"

#include "ownbuttongroup.h"
#include "snapshots.h"

#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/services/exceptionbarrier.h"

#include <QVariant>

using namespace ParameterCollection;

CheckBoxEditor::CheckBoxEditor(QWidget *parent)
    : QCheckBox(parent)
{
    setFocusPolicy(Qt::NoFocus);
    giveOwnButtonGroup(this);
}

CheckBoxEditor::~CheckBoxEditor() = default;

void CheckBoxEditor::updateEditor(ParameterAndData pair)
{
    Plugin::Tessera::runGuarded([&] {
        const auto snapshot = snapshotOf<BooleanParameterData>(pair, Boolean);
        if (!snapshot) {
            return;
        }
        setChecked(snapshot->value);
        if (isEnabled() != snapshot->isWritable) {
            setEnabled(snapshot->isWritable);
        }
    });
}

QVariant CheckBoxEditor::editorValue() const
{
    return isChecked() ? QStringLiteral("1") : QStringLiteral("0");
}
