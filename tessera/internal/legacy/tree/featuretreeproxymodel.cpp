// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreeproxymodel.h"

#include "featuretreemodel.h"

#include "internal/model/featuretablemodel.h"
#include "plugin/constants/itemroles.h"
#include "plugin/contract/genapi/visibility.h"

#include <QScopedValueRollback>

FeatureTreeProxyModel::FeatureTreeProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

FeatureTreeProxyModel::~FeatureTreeProxyModel() = default;

IFeatureTreeModelExtension *FeatureTreeProxyModel::source() const
{
    if (m_castModel != sourceModel()) {
        m_castModel = sourceModel();
        // The interface is no QObject.
        m_source =
            dynamic_cast<IFeatureTreeModelExtension *>(m_castModel); // clazy:exclude=unneeded-cast
    }
    return m_source;
}

void FeatureTreeProxyModel::setSourceModel(QAbstractItemModel *model)
{
    m_castModel = nullptr; // a new model may stand where one stood that is gone
    QSortFilterProxyModel::setSourceModel(model);
}

bool FeatureTreeProxyModel::isOverTree() const
{
    return qobject_cast<FeatureTreeModel *>(sourceModel()) != nullptr;
}

void FeatureTreeProxyModel::addParameterCollection(
    const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
    const QString &rootName, const QString &roleName, bool isUtf8)
{
    const QScopedValueRollback<bool> adding(m_addingCollection, true);
    if (auto *tree = qobject_cast<FeatureTreeModel *>(sourceModel())) {
        tree->addParameterCollection(collection, rootName, roleName, isUtf8);
    }
}

void FeatureTreeProxyModel::setTableItems(const QList<FeatureTreeItem *> &items, bool isUtf8)
{
    using Plugin::Tessera::Internal::Model::CFeatureTableModel;
    if (auto *table = qobject_cast<CFeatureTableModel *>(sourceModel())) {
        table->setItems(items, isUtf8);
    }
}

int FeatureTreeProxyModel::matchCount() const
{
    return m_shownMatches.size();
}

int FeatureTreeProxyModel::hiddenMatchCount() const
{
    return m_hiddenMatches.size();
}

bool FeatureTreeProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (sourceRow == 0 && !sourceParent.isValid()) {
        m_shownMatches.clear();
        m_hiddenMatches.clear();
    }
    const auto *tree = qobject_cast<FeatureTreeModel *>(sourceModel());
    if (tree && !tree->hasCategoriesBelow(sourceParent)) {
        return false; // without a look at the features, which are none of a tree's rows
    }
    return m_addingCollection || rowPasses(sourceRow, sourceParent, Place::OwnRow)
        || (tree && childPasses(sourceRow, sourceParent));
}

bool FeatureTreeProxyModel::rowPasses(int sourceRow, const QModelIndex &sourceParent,
                                      Place place) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    const bool showsAll = m_visibilityLevel == GenApi::Invisible || m_showUnavailable;
    if (!index.isValid() || (!showsAll && !index.data(IsAvailableRole).toBool())) {
        return false;
    }
    const bool isCategory = index.data(IsCategoryRole).toBool();
    if (isOverTree() ? !isCategory && place == Place::OwnRow : isCategory) {
        return false;
    }
    if (!m_featureNames.isEmpty()
        && !m_foldedFeatureNames.contains(index.data(FullNameRole).toString())) {
        return false;
    }
    const int visibility = index.data(VisibilityRole).toInt();
    const bool isShown = visibility <= m_visibilityLevel || m_showUnavailable;
    if (isShown) {
        m_shownMatches.insert(index.data(ShortNameRole).toString());
    } else if (visibility < GenApi::Invisible) {
        m_hiddenMatches.insert(index.data(ShortNameRole).toString());
    }
    return isShown;
}

// The children themselves come before what is below any of them, as most features are found there.
bool FeatureTreeProxyModel::childPasses(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    const int rows = index.isValid() ? sourceModel()->rowCount(index) : 0;
    for (int row = 0; row < rows; ++row) {
        if (rowPasses(row, index, Place::BelowCategory)) {
            return true;
        }
    }
    for (int row = 0; row < rows; ++row) {
        if (childPasses(row, index)) {
            return true;
        }
    }
    return false;
}

// False where there is no row below. A source that begins to load while this model maps its rows
// would be mapped twice; the flat source counts as many rows below each row as at the top. What
// holds features only has no row below in a tree: it is loaded when somebody looks at it.
bool FeatureTreeProxyModel::loadBelow(const QModelIndex &parent) const
{
    if (!parent.isValid()) {
        return true;
    }
    const QModelIndex category = mapToSource(parent);
    const auto *tree = qobject_cast<FeatureTreeModel *>(sourceModel());
    return sourceModel() && (!tree || tree->hasCategoriesBelow(category))
        && sourceModel()->hasChildren(category);
}

bool FeatureTreeProxyModel::hasChildren(const QModelIndex &parent) const
{
    return loadBelow(parent) && QSortFilterProxyModel::hasChildren(parent);
}

QModelIndex FeatureTreeProxyModel::index(int row, int column, const QModelIndex &parent) const
{
    return loadBelow(parent) ? QSortFilterProxyModel::index(row, column, parent) : QModelIndex();
}

int FeatureTreeProxyModel::rowCount(const QModelIndex &parent) const
{
    return loadBelow(parent) ? QSortFilterProxyModel::rowCount(parent) : 0;
}

int FeatureTreeProxyModel::columnCount(const QModelIndex &parent) const
{
    if (loadBelow(parent)) {
        return QSortFilterProxyModel::columnCount(parent);
    }
    return sourceModel() ? sourceModel()->columnCount(mapToSource(parent)) : 0;
}

QModelIndex FeatureTreeProxyModel::createItemIndex(FeatureTreeItem *item, int column)
{
    return source() ? mapFromSource(source()->createItemIndex(item, column)) : QModelIndex();
}

void FeatureTreeProxyModel::setPolling(bool polling)
{
    if (source()) {
        source()->setPolling(polling);
    }
}

bool FeatureTreeProxyModel::isPolling() const
{
    return source() && source()->isPolling();
}

void FeatureTreeProxyModel::setActive(bool active)
{
    if (source()) {
        source()->setActive(active);
    }
}

QModelIndex FeatureTreeProxyModel::indexOfItem(FeatureTreeItem *item, FeatureTreeItem *searchRoot,
                                               int column)
{
    return source() ? mapFromSource(source()->indexOfItem(item, searchRoot, column))
                    : QModelIndex();
}

QModelIndex FeatureTreeProxyModel::indexOfName(const QString &fullName, FeatureTreeItem *searchRoot,
                                               int column)
{
    return source() ? mapFromSource(source()->indexOfName(fullName, searchRoot, column))
                    : QModelIndex();
}

QModelIndex FeatureTreeProxyModel::indexOfRoleValue(int role, const QVariant &value,
                                                    FeatureTreeItem *searchRoot, int column)
{
    return source() ? mapFromSource(source()->indexOfRoleValue(role, value, searchRoot, column))
                    : QModelIndex();
}

void FeatureTreeProxyModel::setFeatureNameFilter(const QStringList &names)
{
    if (m_featureNames != names) {
        m_featureNames = names;
        m_foldedFeatureNames = FavoriteNames(names);
    }
    // Also without a change: features may have become available since the last run.
    invalidateFilter();
}

QList<FeatureTreeItem *> FeatureTreeProxyModel::itemsForNames(QStringList &names)
{
    return source() ? source()->itemsForNames(names) : QList<FeatureTreeItem *>();
}

void FeatureTreeProxyModel::markFavorites(const QStringList &names)
{
    if (source()) {
        source()->markFavorites(names);
        invalidate();
    }
}

void FeatureTreeProxyModel::markSearchMatches(const QString &text)
{
    if (source()) {
        source()->markSearchMatches(text);
        invalidate();
    }
}

void FeatureTreeProxyModel::setShowUnavailable(bool show)
{
    m_showUnavailable = show;
    invalidateFilter();
}

void FeatureTreeProxyModel::pollNodes(const QStringList &names)
{
    Q_UNUSED(names)
    if (source()) {
        source()->pollNodes(m_featureNames);
    }
}

void FeatureTreeProxyModel::loadChildren(FeatureTreeINodeItem *parent,
                                         QSharedPointer<ParameterCollection::IParameter> parameter)
{
    if (source()) {
        source()->loadChildren(parent, parameter);
    }
}

void FeatureTreeProxyModel::setVisibility(int visibility)
{
    m_visibilityLevel = visibility;
    if (source()) {
        source()->setVisibility(visibility);
    }
}

int FeatureTreeProxyModel::visibility() const
{
    return source() ? source()->visibility() : 0;
}

void FeatureTreeProxyModel::setPollByInvalidation(bool invalidate)
{
    if (source()) {
        source()->setPollByInvalidation(invalidate);
    }
}

void FeatureTreeProxyModel::setAcceptUpdates(bool accept)
{
    if (source()) {
        source()->setAcceptUpdates(accept);
    }
}

bool FeatureTreeProxyModel::acceptUpdates() const
{
    return source() && source()->acceptUpdates();
}

FeatureTreeItem *FeatureTreeProxyModel::itemFromIndex(const QModelIndex &index) const
{
    return source() ? source()->itemFromIndex(mapToSource(index)) : nullptr;
}

void FeatureTreeProxyModel::setSearchText(const QString *searchText)
{
    if (source()) {
        source()->setSearchText(searchText);
    }
}

void FeatureTreeProxyModel::refreshAll()
{
    if (source()) {
        source()->refreshAll();
    }
}

bool FeatureTreeProxyModel::isUtf8() const
{
    return source() && source()->isUtf8();
}

// The source drops its items without a word: it is cleared while nobody looks at it.
void FeatureTreeProxyModel::clear()
{
    QAbstractItemModel *model = sourceModel();
    IFeatureTreeModelExtension *extension = source();
    if (!extension) {
        return;
    }
    setSourceModel(nullptr);
    extension->clear();
    setSourceModel(model);
}

void FeatureTreeProxyModel::onNodeUpdated(int row, FeatureTreeINodeItem *item)
{
    if (source()) {
        source()->onNodeUpdated(row, item);
    }
}

void FeatureTreeProxyModel::onTimerPoll()
{
    if (source()) {
        source()->onTimerPoll();
    }
}

QString FeatureTreeProxyModel::emptyText(
    QSharedPointer<ParameterCollection::IParameter> parameter) const
{
    return source() ? source()->emptyText(parameter) : QString();
}

bool FeatureTreeProxyModel::markFavoritesBelow(FeatureTreeItem *item, const QStringList &names)
{
    return source() && source()->markFavoritesBelow(item, names);
}

bool FeatureTreeProxyModel::markSearchBelow(FeatureTreeItem *item, const QString &text)
{
    return source() && source()->markSearchBelow(item, text);
}
