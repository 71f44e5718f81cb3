// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "internal/legacy/tree/featuretreedelegate.h"

/// For a view that keeps no editors open: draws every value as text and opens the editor on a
/// double click, a line edit for numbers and texts. A line that was not typed into writes nothing.
class PlainValueDelegate final : public FeatureTreeDelegate
{
    Q_OBJECT

public:
    /// `model` is the model of the view, and outlives the delegate's use.
    PlainValueDelegate(QObject *parent, IFeatureTreeModelExtension *model);
    ~PlainValueDelegate() override;

    /// Null for what cannot be written now.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    void writeValue(QWidget *editor, QAbstractItemModel *model,
                    const QModelIndex &index) const override;
};
