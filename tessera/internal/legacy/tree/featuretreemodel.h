// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretreemodelextension.h"

#include <QAbstractItemModel>
#include <QTimer>
#include <QVector>

#include <memory>

namespace ParameterCollection {
class IParameterCollection;
}

/// The parameters of one or more collections as a tree of two columns, "Category" and "Value". Owns
/// the items and makes them when they are asked for, forwards their updates, carries edits to them
/// and polls the first collection.
class FeatureTreeModel final : public QAbstractItemModel, public IFeatureTreeModelExtension
{
    Q_OBJECT

public:
    explicit FeatureTreeModel(QObject *parent = nullptr);
    ~FeatureTreeModel() override;

    /// Adds the tree that is attached under `roleName` as a top row with the text `rootName`.
    /// `isUtf8` tells how texts are written. A tree that cannot be read gets a log entry and no
    /// row.
    virtual void addParameterCollection(
        QSharedPointer<ParameterCollection::IParameterCollection> pParameterCollection,
        const QString &rootName, const QString &roleName, bool isUtf8);

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Writes nothing for a value that is shown already. The display follows when the parameter
    /// publishes its next snapshot, so a refused write shows the old value again.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// The full path of the first index's parameter; see `MimeTypes::ParameterPath`.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDropActions() const override;

    QModelIndex createItemIndex(FeatureTreeItem *item, int column) override;
    void setPolling(bool polling) override;
    bool isPolling() const override;
    void setActive(bool active) override;
    QModelIndex indexOfItem(FeatureTreeItem *item, FeatureTreeItem *searchRoot,
                            int column) override;
    QModelIndex indexOfName(const QString &fullName, FeatureTreeItem *searchRoot,
                            int column) override;
    QModelIndex indexOfRoleValue(int role, const QVariant &value, FeatureTreeItem *searchRoot,
                                 int column) override;
    void setFeatureNameFilter(const QStringList &names) override;
    QList<FeatureTreeItem *> itemsForNames(QStringList &names) override;
    void markFavorites(const QStringList &names) override;
    void markSearchMatches(const QString &text) override;
    void setShowUnavailable(bool show) override;
    void pollNodes(const QStringList &names) override;
    void loadChildren(FeatureTreeINodeItem *parent,
                      QSharedPointer<ParameterCollection::IParameter> parameter) override;
    void setVisibility(int visibility) override;
    int visibility() const override;
    void setPollByInvalidation(bool invalidate) override;
    void setAcceptUpdates(bool accept) override;
    bool acceptUpdates() const override;
    FeatureTreeItem *itemFromIndex(const QModelIndex &index) const override;
    void setSearchText(const QString *searchText) override;
    void refreshAll() override;
    bool isUtf8() const override;
    QString emptyText(QSharedPointer<ParameterCollection::IParameter> parameter) const override;
    bool markFavoritesBelow(FeatureTreeItem *item, const QStringList &names) override;
    bool markSearchBelow(FeatureTreeItem *item, const QString &text) override;

    /// False where all that can come below `parent` are features, without loading them.
    bool hasCategoriesBelow(const QModelIndex &parent) const;

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): for moc
    void clear() override;
    void onNodeUpdated(int row, FeatureTreeINodeItem *pItem) override;
    void onTimerPoll() override;
    /// True: all categories are rows. False: rows are two levels of categories, the second of which
    /// lists the features of all categories below it.
    void setShowTreeView(bool showTreeView);

private:
    struct CollectionEntry
    {
        QString roleName;
        QString rootName;
        bool isUtf8 = false;
        QSharedPointer<ParameterCollection::IParameterCollection> collection;
    };

    void loadCollection(const CollectionEntry &entry);
    void adopt(FeatureTreeINodeItem *item, bool isCollectionTop);
    FeatureTreeItem *itemOrRoot(const QModelIndex &index) const;
    FeatureTreeItem *orRoot(FeatureTreeItem *item) const;
    void announce(FeatureTreeItem *item, int levels);

    std::unique_ptr<FeatureTreeItem> m_rootItem;
    QVector<CollectionEntry> m_collections;
    QTimer m_pollTimer;
    int m_pollIntervalMs = 300;
    int m_visibility = 2;
    const QString *m_searchText = nullptr; // borrowed
    mutable bool m_getFailureLogged = false;
    bool m_polling = false;
    bool m_active = true;
    bool m_pollByInvalidation = false;
    bool m_acceptUpdates = true;
    bool m_isUtf8 = false;
    bool m_showTreeView = false;
};
