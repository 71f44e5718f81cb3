// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <QComboBox>
#include <QPointer>

namespace ParameterCollection {
struct EnumParameterData;
}

/// Cell editor of an enumeration: a list of the entries that can be chosen now. While the list is
/// open no snapshot is taken; the next one after that brings the editor up to date.
class EnumEditor final : public QComboBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit EnumEditor(QWidget *parent);
    ~EnumEditor() override;

    void updateEditor(ParameterAndData pair) override;
    /// The symbolic name of the current entry, as text.
    QVariant editorValue() const override;

    void showPopup() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    bool showsEntriesOf(const ParameterCollection::EnumParameterData &snapshot) const;
    void showEntriesOf(const ParameterCollection::EnumParameterData &snapshot);
    void selectEntryOf(const ParameterCollection::EnumParameterData &snapshot,
                       const ParameterAndData &pair);

    QPointer<QWidget> m_popup; // borrowed from the base: null while the list is closed
};
