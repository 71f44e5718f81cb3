// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

class FeatureTreeINodeItem;
class IFeatureTreeModelExtension;

/// Draws the values of a feature tree and edits them as text. What the user types is written when
/// the editor closes; an editor that was not typed into writes nothing.
class FeatureTreeDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `model` is the model of the view, and outlives the delegate's use.
    FeatureTreeDelegate(QObject *parent, IFeatureTreeModelExtension *model);
    ~FeatureTreeDelegate() override;

    /// Null for what cannot be edited now.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    FeatureTreeINodeItem *nodeItem(const QModelIndex &index) const;

    IFeatureTreeModelExtension *m_model = nullptr; // borrowed
};
