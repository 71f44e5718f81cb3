// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "toolbuttoneditor.h"

#include "editorlog.h"
#include "ownbuttongroup.h"
#include "snapshots.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/services/exceptionbarrier.h"

#include <QVariant>

using namespace ParameterCollection;

namespace {

EditorLog editorLog(Plugin::Tessera::LogCategories::ToolButtonEditor);

} // namespace

ToolButtonEditor::ToolButtonEditor(QWidget *parent)
    : QToolButton(parent)
{
    setAutoRaise(false);
    setText(tr("Execute"));
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setContentsMargins(0, 0, 0, 0);
    giveOwnButtonGroup(this);
}

ToolButtonEditor::~ToolButtonEditor() = default;

void ToolButtonEditor::updateEditor(ParameterAndData pair)
{
    Plugin::Tessera::runGuarded([&] {
        const auto command = pair.parameter.objectCast<ICommandParameter>();
        const auto snapshot = snapshotOf<CommandParameterData>(pair, Command);
        if (!command || !snapshot) {
            editorLog.fault(QStringLiteral(" is called with non-command node????"));
            return;
        }
        m_commandParameter = command;
        setChecked(!snapshot->isDone);
        if (isEnabled() != snapshot->isWritable) {
            setEnabled(snapshot->isWritable);
        }
    });
}

QVariant ToolButtonEditor::editorValue() const
{
    // Read first: the refresh may bring a snapshot that sets the button.
    const bool pressed = isChecked();
    if (const auto command = m_commandParameter) {
        Plugin::Tessera::runGuarded([&] { command->refresh(false); });
    }
    return pressed ? QVariant(QStringLiteral("1")) : QVariant();
}
