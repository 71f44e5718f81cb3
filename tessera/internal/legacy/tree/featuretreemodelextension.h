// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>
#include <QSharedPointer>
#include <QStringList>
#include <QVariant>

class FeatureTreeINodeItem;
class FeatureTreeItem;

namespace ParameterCollection {
class IParameter;
}

/// What the tree's model, its proxy and the table's model have in common, so that items, views and
/// delegates need not know which of them they talk to. Indexes are those of the object asked.
class IFeatureTreeModelExtension
{
public:
    IFeatureTreeModelExtension();
    virtual ~IFeatureTreeModelExtension();
    Q_DISABLE_COPY_MOVE(IFeatureTreeModelExtension)

    /// The index of `item`; invalid for null.
    virtual QModelIndex createItemIndex(FeatureTreeItem *item, int column) = 0;
    /// Polling reads again, at an interval, what changes by itself.
    virtual void setPolling(bool polling) = 0;
    virtual bool isPolling() const = 0;
    /// While a model is not active it refuses edits, announces no updates and does not poll.
    virtual void setActive(bool active) = 0;
    // A search goes over the items below `searchRoot`; null means all.
    virtual QModelIndex indexOfItem(FeatureTreeItem *item, FeatureTreeItem *searchRoot,
                                    int column) = 0;
    virtual QModelIndex indexOfName(const QString &fullName, FeatureTreeItem *searchRoot,
                                    int column) = 0;
    virtual QModelIndex indexOfRoleValue(int role, const QVariant &value,
                                         FeatureTreeItem *searchRoot, int column) = 0;
    /// The features that a proxy lets pass; empty for all.
    virtual void setFeatureNameFilter(const QStringList &names) = 0;
    /// The items with these full names, in the order of the tree. Names that are found are taken
    /// out of `names`.
    virtual QList<FeatureTreeItem *> itemsForNames(QStringList &names) = 0;
    /// Marks the features of a use case and the categories above them.
    virtual void markFavorites(const QStringList &names) = 0;
    /// Marks what `text` is found in and the categories above.
    virtual void markSearchMatches(const QString &text) = 0;
    virtual void setShowUnavailable(bool show) = 0;
    /// Reads these features again; an empty list means all that changed.
    virtual void pollNodes(const QStringList &names) = 0;
    /// Makes the items for the children of the category `parameter` below `parent`.
    virtual void loadChildren(FeatureTreeINodeItem *parent,
                              QSharedPointer<ParameterCollection::IParameter> parameter) = 0;
    /// The visibility level, 0 to 3.
    virtual void setVisibility(int visibility) = 0;
    virtual int visibility() const = 0;
    /// Polls with `pollNodes` instead of the collection's own polling.
    virtual void setPollByInvalidation(bool invalidate) = 0;
    /// Items drop incoming snapshots while this is false.
    virtual void setAcceptUpdates(bool accept) = 0;
    virtual bool acceptUpdates() const = 0;
    /// The item behind an index; null for an invalid one.
    virtual FeatureTreeItem *itemFromIndex(const QModelIndex &index) const = 0;
    /// The text being searched for, for highlighting; it must outlive the model.
    virtual void setSearchText(const QString *searchText) = 0;
    /// Announces all rows as changed.
    virtual void refreshAll() = 0;
    /// Whether the collection added last takes its texts in UTF-8.
    virtual bool isUtf8() const = 0;
    /// Deletes all items without any signal: whoever shows the model detaches from it before.
    virtual void clear() = 0;
    /// `item` in row `row` has a new snapshot.
    virtual void onNodeUpdated(int row, FeatureTreeINodeItem *item) = 0;
    virtual void onTimerPoll() = 0;
    /// Always empty.
    virtual QString emptyText(QSharedPointer<ParameterCollection::IParameter> parameter) const = 0;
    /// Marks in `item` and below; true when `item` got the mark.
    virtual bool markFavoritesBelow(FeatureTreeItem *item, const QStringList &names) = 0;
    virtual bool markSearchBelow(FeatureTreeItem *item, const QString &text) = 0;
};
