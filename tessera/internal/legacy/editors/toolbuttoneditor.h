// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <QToolButton>

namespace ParameterCollection {
class ICommandParameter;
}

/// Cell editor of a command: a button that stays pressed as long as the command runs. The model
/// executes the command; the editor only says that it was asked for.
class ToolButtonEditor final : public QToolButton, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit ToolButtonEditor(QWidget *parent);
    ~ToolButtonEditor() override;

    void updateEditor(ParameterAndData pair) override;
    /// The text "1" after a click that pressed the button, invalid after one that released it. Has
    /// the command read again.
    QVariant editorValue() const override;

private:
    QSharedPointer<ParameterCollection::ICommandParameter> m_commandParameter;
};
