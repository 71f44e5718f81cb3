// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretreemarking.h"
#include "featuretreemodelextension.h"

#include <QSet>
#include <QSortFilterProxyModel>

namespace ParameterCollection {
class IParameterCollection;
}

/// Decides which rows of a model the user sees. Over a `FeatureTreeModel` it is a tree of
/// categories: a feature is no row, but keeps the categories above it. Over any other model of
/// features it is a list without categories. The order stays the source's.
///
/// It answers the extension interface in its own indexes by asking its source; without a source
/// the answers are null, empty or false.
class FeatureTreeProxyModel final : public QSortFilterProxyModel, public IFeatureTreeModelExtension
{
    Q_OBJECT

public:
    explicit FeatureTreeProxyModel(QObject *parent = nullptr);
    ~FeatureTreeProxyModel() override;

    /// Adds a collection to a source that is a `FeatureTreeModel`. All rows pass meanwhile, so that
    /// views can lay out the new top row.
    void addParameterCollection(
        const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
        const QString &rootName, const QString &roleName, bool isUtf8);
    /// The rows of a source that is a `CFeatureTableModel`.
    void setTableItems(const QList<FeatureTreeItem *> &items, bool isUtf8);
    /// The different short names that the last run of the filter let pass. A run looks no further
    /// than it must, so this is no count of all rows that could be shown.
    int matchCount() const;
    /// The same for those that only the visibility level kept out.
    int hiddenMatchCount() const;

    void setSourceModel(QAbstractItemModel *model) override;
    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;

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
    /// Full names, compared without regard to case; filters anew.
    void setFeatureNameFilter(const QStringList &names) override;
    QList<FeatureTreeItem *> itemsForNames(QStringList &names) override;
    void markFavorites(const QStringList &names) override;
    void markSearchMatches(const QString &text) override;
    /// Shows also what is not available and what is above the level; filters anew.
    void setShowUnavailable(bool show) override;
    /// Polls the features of the name filter, whatever the argument.
    void pollNodes(const QStringList &names) override;
    void loadChildren(FeatureTreeINodeItem *parent,
                      QSharedPointer<ParameterCollection::IParameter> parameter) override;
    /// Does not filter anew: whoever changes the level calls `invalidate`.
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

public Q_SLOTS:
    /// Clears the source and resets the model.
    void clear() override;
    void onNodeUpdated(int row, FeatureTreeINodeItem *item) override;
    void onTimerPoll() override;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    enum class Place { OwnRow, BelowCategory };

    bool isOverTree() const;
    bool rowPasses(int sourceRow, const QModelIndex &sourceParent, Place place) const;
    bool childPasses(int sourceRow, const QModelIndex &sourceParent) const;
    bool loadBelow(const QModelIndex &parent) const;
    IFeatureTreeModelExtension *source() const;

    mutable QAbstractItemModel *m_castModel = nullptr; // only compared
    mutable IFeatureTreeModelExtension *m_source = nullptr; // m_castModel, cast once for all
    QStringList m_featureNames;
    FavoriteNames m_foldedFeatureNames;
    mutable QSet<QString> m_shownMatches;
    mutable QSet<QString> m_hiddenMatches;
    int m_visibilityLevel = 2;
    bool m_addingCollection = false;
    bool m_showUnavailable = false;
};
