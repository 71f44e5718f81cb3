// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreemodel.h"

#include "draggedfeature.h"
#include "featuretreeinodeitem.h"
#include "featuretreeloader.h"
#include "featuretreemarking.h"
#include "nameditems.h"

#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parameternode.h"
#include "plugin/services/exceptionbarrier.h"

#include <QPointer>

using namespace ParameterCollection;
using Plugin::Tessera::runGuarded;

namespace {

void invalidate(const IParameter &parameter)
{
    if (const QSharedPointer<IParameterNode> node = parameter.node()) {
        node->invalidate();
    }
}

} // namespace

FeatureTreeModel::FeatureTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_rootItem(std::make_unique<FeatureTreeItem>(QString(), this, QString(), nullptr, 0))
    , m_pollTimer(this)
{
    m_pollTimer.setSingleShot(true);
    connect(&m_pollTimer, &QTimer::timeout, this, &FeatureTreeModel::onTimerPoll);
}

FeatureTreeModel::~FeatureTreeModel() = default;

QModelIndex FeatureTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (parent.column() > 0 || column < 0 || column >= columnCount()) {
        return {};
    }
    FeatureTreeItem *child = itemOrRoot(parent)->child(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex FeatureTreeModel::parent(const QModelIndex &child) const
{
    FeatureTreeItem *item = itemFromIndex(child);
    FeatureTreeItem *parentItem = item ? item->parent() : nullptr;
    if (!parentItem || parentItem == m_rootItem.get()) {
        return {};
    }
    return createIndex(parentItem->row(), 0, parentItem);
}

int FeatureTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : itemOrRoot(parent)->childCount();
}

int FeatureTreeModel::columnCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return 2;
}

// Loads first: a load that only starts when a proxy counts the rows would come in the middle of the
// proxy's own work.
bool FeatureTreeModel::hasChildren(const QModelIndex &parent) const
{
    if (parent.column() > 0) {
        return false;
    }
    FeatureTreeItem *item = itemFromIndex(parent);
    if (!item) {
        return true;
    }
    item->childCount();
    return item->hasChildren();
}

QVariant FeatureTreeModel::data(const QModelIndex &index, int role) const
{
    FeatureTreeItem *item = itemFromIndex(index);
    if (!item) {
        return {};
    }
    QVariant answer;
    const bool answered = runGuarded([&] { answer = item->data(index.column(), role); });
    if (!answered && !m_getFailureLogged) {
        logTreeFault(__LINE__, QStringLiteral("Failed to get a feature value"));
    }
    m_getFailureLogged = !answered;
    return answer;
}

bool FeatureTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    FeatureTreeItem *item = itemFromIndex(index);
    if (!item || role != Qt::EditRole || index.column() != 1 || !value.isValid() || !m_active) {
        return false;
    }
    const QPointer<FeatureTreeModel> self(this); // a write may end in anything
    return runGuarded(
        [&] {
            // The new value comes first: Qt converts the second operand to the type of the first.
            if (!(value == item->data(1, Qt::EditRole))) {
                item->setData(1, value, Qt::EditRole);
            }
        },
        [&](const Plugin::Tessera::CaughtException &) {
            if (self && m_active) {
                logTreeFault(__LINE__, QStringLiteral("Failed to set a feature value."));
            }
        });
}

QVariant FeatureTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        if (section == 0) {
            return tr("Category");
        }
        if (section == 1) {
            return tr("Value");
        }
    }
    return {};
}

Qt::ItemFlags FeatureTreeModel::flags(const QModelIndex &index) const
{
    const FeatureTreeItem *item = itemFromIndex(index);
    return item ? item->flags(index.column()) : Qt::ItemIsEnabled;
}

QMimeData *FeatureTreeModel::mimeData(const QModelIndexList &indexes) const
{
    QMimeData *payload = QAbstractItemModel::mimeData(indexes);
    addParameterPath(payload, itemFromIndex(indexes.value(0)));
    return payload;
}

Qt::DropActions FeatureTreeModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

void FeatureTreeModel::addParameterCollection(
    QSharedPointer<IParameterCollection> pParameterCollection, const QString &rootName,
    const QString &roleName, bool isUtf8)
{
    const CollectionEntry entry {roleName, rootName, isUtf8, pParameterCollection};
    loadCollection(entry);
    // Also where the load failed: a change of shape tries again.
    m_collections.append(entry);
}

void FeatureTreeModel::loadCollection(const CollectionEntry &entry)
{
    m_isUtf8 = entry.isUtf8;
    const QSharedPointer<IParameter> parameter = rootParameter(entry.collection, entry.roleName);
    if (!parameter) {
        return;
    }
    const QString key = entry.roleName + QLatin1String("*Root");
    auto *item = new FeatureTreeINodeItem(entry.collection, parameter, entry.rootName, this, key,
                                          nullptr, entry.isUtf8, 1);
    adopt(item, true);
    Q_EMIT layoutAboutToBeChanged();
    m_rootItem->appendChild(item);
    Q_EMIT layoutChanged();
    item->childCount();
}

void FeatureTreeModel::adopt(FeatureTreeINodeItem *item, bool isCollectionTop)
{
    item->setSearchText(m_searchText);
    item->setIsCollectionTop(isCollectionTop);
    connect(item, &FeatureTreeINodeItem::nodeUpdated, this, &FeatureTreeModel::onNodeUpdated);
}

void FeatureTreeModel::loadChildren(FeatureTreeINodeItem *parent,
                                    QSharedPointer<IParameter> parameter)
{
    if (!parameter) {
        return;
    }
    const QVector<FeatureTreeINodeItem *> items =
        FeatureTreeLoader(this, m_showTreeView).itemsFor(parent, parameter);
    if (items.isEmpty()) {
        return;
    }
    const int first = parent->childCount();
    beginInsertRows(createItemIndex(parent, 0), first, first + items.size() - 1);
    for (FeatureTreeINodeItem *item : items) {
        adopt(item, false);
        parent->appendChild(item);
    }
    endInsertRows();
}

bool FeatureTreeModel::hasCategoriesBelow(const QModelIndex &parent) const
{
    const FeatureTreeItem *item = itemFromIndex(parent);
    return m_showTreeView || !item || item->depth() < 2;
}

void FeatureTreeModel::setShowTreeView(bool showTreeView)
{
    if (showTreeView == m_showTreeView) {
        return;
    }
    m_showTreeView = showTreeView;
    // A tree that could not be read has an entry but no row.
    if (const int rows = m_rootItem->childCount()) {
        beginRemoveRows(QModelIndex(), 0, rows - 1);
        m_rootItem->clear();
        endRemoveRows();
    }
    const QVector<CollectionEntry> entries = m_collections;
    for (const CollectionEntry &entry : entries) {
        loadCollection(entry);
    }
}

void FeatureTreeModel::clear()
{
    m_rootItem->clear();
}

void FeatureTreeModel::onNodeUpdated(int row, FeatureTreeINodeItem *pItem)
{
    if (m_active) {
        const QModelIndex index = createIndex(row, 0, pItem);
        Q_EMIT dataChanged(index, index);
    }
}

void FeatureTreeModel::setPolling(bool polling)
{
    const bool starts = polling && !m_polling;
    m_polling = polling;
    if (starts) {
        m_pollTimer.start(m_pollIntervalMs);
    }
}

bool FeatureTreeModel::isPolling() const
{
    return m_polling;
}

void FeatureTreeModel::onTimerPoll()
{
    if (!m_active) {
        return;
    }
    if (m_pollByInvalidation) {
        pollNodes({});
    } else if (!m_collections.isEmpty()) {
        const auto collection = m_collections.constFirst().collection;
        runGuarded([&] {
            if (collection) {
                collection->poll(m_pollIntervalMs);
            }
        });
    }
    if (m_polling) {
        m_pollTimer.start(m_pollIntervalMs);
    }
}

void FeatureTreeModel::pollNodes(const QStringList &names)
{
    if (m_collections.isEmpty() || !m_collections.constFirst().collection) {
        return;
    }
    const QSharedPointer<IParameterCollection> collection = m_collections.constFirst().collection;
    const auto onException = [](const Plugin::Tessera::CaughtException &e) {
        logTreeFault(__LINE__,
                     QStringLiteral("Failed to update nodes. Message: %1").arg(e.message));
    };
    if (names.isEmpty()) {
        runGuarded([&] { collection->endBatchUpdate(); }, onException);
    }
    for (const QString &name : names) {
        runGuarded(
            [&] {
                if (const QSharedPointer<IParameter> parameter = collection->parameter(name)) {
                    invalidate(*parameter);
                }
            },
            onException);
    }
}

void FeatureTreeModel::refreshAll()
{
    announce(m_rootItem.get(), 3);
}

void FeatureTreeModel::announce(FeatureTreeItem *item, int levels)
{
    for (int row = 0; FeatureTreeItem *child = item->child(row); ++row) {
        const QModelIndex index = createItemIndex(child, 0);
        Q_EMIT dataChanged(index, index);
        if (levels > 1) {
            announce(child, levels - 1);
        }
    }
}

QModelIndex FeatureTreeModel::createItemIndex(FeatureTreeItem *item, int column)
{
    if (!item || item == m_rootItem.get()) {
        return {};
    }
    return createIndex(item->row(), column, item);
}

QModelIndex FeatureTreeModel::indexOfItem(FeatureTreeItem *item, FeatureTreeItem *searchRoot,
                                          int column)
{
    return orRoot(searchRoot)->containsItem(item) ? createItemIndex(item, column) : QModelIndex();
}

QModelIndex FeatureTreeModel::indexOfName(const QString &fullName, FeatureTreeItem *searchRoot,
                                          int column)
{
    return createItemIndex(orRoot(searchRoot)->findByFullName(fullName), column);
}

QModelIndex FeatureTreeModel::indexOfRoleValue(int role, const QVariant &value,
                                               FeatureTreeItem *searchRoot, int column)
{
    return createItemIndex(orRoot(searchRoot)->findByRole(role, value), column);
}

QList<FeatureTreeItem *> FeatureTreeModel::itemsForNames(QStringList &names)
{
    return takeNamedItems(*m_rootItem, names);
}

void FeatureTreeModel::markFavorites(const QStringList &names)
{
    const FavoriteNames favorites(names);
    for (int row = 0; FeatureTreeItem *top = m_rootItem->child(row); ++row) {
        ::markFavorites(*top, favorites);
    }
}

bool FeatureTreeModel::markFavoritesBelow(FeatureTreeItem *item, const QStringList &names)
{
    return ::markFavorites(*item, FavoriteNames(names));
}

void FeatureTreeModel::markSearchMatches(const QString &text)
{
    const SearchText searched(text);
    for (int row = 0; FeatureTreeItem *top = m_rootItem->child(row); ++row) {
        ::markSearchMatches(*top, searched);
    }
}

bool FeatureTreeModel::markSearchBelow(FeatureTreeItem *item, const QString &text)
{
    return ::markSearchMatches(*item, SearchText(text));
}

FeatureTreeItem *FeatureTreeModel::itemFromIndex(const QModelIndex &index) const
{
    return static_cast<FeatureTreeItem *>(index.internalPointer());
}

FeatureTreeItem *FeatureTreeModel::itemOrRoot(const QModelIndex &index) const
{
    return orRoot(itemFromIndex(index));
}

FeatureTreeItem *FeatureTreeModel::orRoot(FeatureTreeItem *item) const
{
    return item ? item : m_rootItem.get();
}

void FeatureTreeModel::setFeatureNameFilter(const QStringList &names)
{
    Q_UNUSED(names) // a matter of the proxy
}

void FeatureTreeModel::setShowUnavailable(bool show)
{
    Q_UNUSED(show) // a matter of the proxy
}

void FeatureTreeModel::setActive(bool active)
{
    m_active = active;
}

void FeatureTreeModel::setVisibility(int visibility)
{
    m_visibility = visibility;
}

int FeatureTreeModel::visibility() const
{
    return m_visibility;
}

void FeatureTreeModel::setPollByInvalidation(bool invalidate)
{
    m_pollByInvalidation = invalidate;
}

void FeatureTreeModel::setAcceptUpdates(bool accept)
{
    m_acceptUpdates = accept;
}

bool FeatureTreeModel::acceptUpdates() const
{
    return m_acceptUpdates;
}

void FeatureTreeModel::setSearchText(const QString *searchText)
{
    m_searchText = searchText;
}

bool FeatureTreeModel::isUtf8() const
{
    return m_isUtf8;
}

QString FeatureTreeModel::emptyText(QSharedPointer<IParameter> parameter) const
{
    Q_UNUSED(parameter)
    return {};
}
