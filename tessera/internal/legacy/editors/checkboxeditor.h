// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <QCheckBox>

/// Cell editor of a boolean: a check box that is written when it is clicked.
class CheckBoxEditor final : public QCheckBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit CheckBoxEditor(QWidget *parent);
    ~CheckBoxEditor() override;

    void updateEditor(ParameterAndData pair) override;
    /// The text "1" or "0".
    QVariant editorValue() const override;
};
