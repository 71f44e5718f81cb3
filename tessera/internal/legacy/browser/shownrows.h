// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QModelIndex>
#include <QObject>
#include <QPointer>

class FeatureTreeINodeItem;
class FeatureTreeModel;
class QTreeView;

/// Keeps the rows of a plain tree view alive: hides what is above the visibility level and
/// subscribes the features in expanded categories, and only those, to their parameters.
class ShownRows final : public QObject
{
    Q_OBJECT

public:
    /// `view` shows `model`; both outlive this object.
    ShownRows(QTreeView *view, FeatureTreeModel *model, QObject *parent);
    ~ShownRows() override;

    /// Hides and shows the rows anew after a change of the model's visibility level.
    void applyVisibility();
    /// Subscribes what has come into view and unsubscribes what has left it.
    void sync();
    /// Unsubscribes all.
    void release();

private:
    using Items = QHash<FeatureTreeINodeItem *, QPointer<FeatureTreeINodeItem>>;

    void onRowsInserted(const QModelIndex &parent, int first, int last);
    void onDataChanged(const QModelIndex &index);
    void hideRows(const QModelIndex &parent, int first, int last, bool deep);
    void collect(const QModelIndex &parent, Items &items) const;

    QTreeView *m_view = nullptr; // borrowed
    FeatureTreeModel *m_model = nullptr; // borrowed
    Items m_subscribed;
};
