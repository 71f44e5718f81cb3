// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <QLineEdit>

namespace ParameterCollection {
struct IntegerParameterData;
}

/// Cell editor of every integer without a slider. It knows no numbers: it shows the text of the
/// parameter and hands out what was typed, which the parameter reads.
class IntEditor final : public QLineEdit, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit IntEditor(QWidget *parent);
    ~IntEditor() override;

    void updateEditor(ParameterAndData pair) override;
    /// The text as it stands.
    QVariant editorValue() const override;

    /// True while the editor shows that the value cannot be read and nothing was typed over it:
    /// then there is nothing to commit.
    bool showsNotReadable() const;

private:
    void showSnapshot(const ParameterCollection::IntegerParameterData &snapshot);
};
