// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretablemodel.h"

#include "internal/legacy/tree/draggedfeature.h"
#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemarking.h"
#include "internal/legacy/tree/itemeditorkind.h"
#include "plugin/constants/itemroles.h"
#include "plugin/constants/logcategories.h"
#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/genapi/visibility.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/viewer/exceptiondialogs.h"
#include "plugin/services/exceptionbarrier.h"

#include <QMimeData>

using ParameterCollection::IParameter;

namespace Plugin::Tessera::Internal::Model {

namespace {

void logFault(int line, const QString &text)
{
    static const quint64 category = Core::Logging::getCatId(LogCategories::TableModel);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category,
                                  QStringLiteral("featuretablemodel %1 %2").arg(line).arg(text));
}

bool markFavorite(FeatureTreeItem &item, const FavoriteNames &names)
{
    bool found = false;
    const int count = item.childCount();
    for (int row = 0; row < count; ++row) {
        found = markFavorite(*item.child(row), names) || found;
    }
    found = found
        || (item.visibility() != GenApi::Invisible && item.accessMode() != 0
            && names.contains(item.fullName()));
    item.setFavoriteMatch(found);
    return found;
}

bool markSearchMatch(FeatureTreeItem &item, const SearchText &searched)
{
    bool found = false;
    const int count = item.childCount();
    for (int row = 0; row < count; ++row) {
        found = markSearchMatch(*item.child(row), searched) || found;
    }
    found = found || searched.isIn(item.text()) || searched.isIn(item.fullName());
    item.setSearchMatch(found);
    return found;
}

} // namespace

CFeatureTableModel::CFeatureTableModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

CFeatureTableModel::~CFeatureTableModel()
{
    CFeatureTableModel::clear();
}

void CFeatureTableModel::setItems(QList<FeatureTreeItem *> items, bool isUtf8)
{
    m_isUtf8 = isUtf8;
    if (m_rows.size() > 0) {
        // One removal inside another is meant: a proxy shows its views the outer one only.
        beginRemoveRows(QModelIndex(), 0, m_rows.size() - 1);
        clear();
        endRemoveRows();
    }
    if (items.isEmpty()) {
        return;
    }
    beginInsertRows(QModelIndex(), 0, items.size() - 1);
    m_rows.assign(items);
    QList<QPointer<FeatureTreeINodeItem>> features;
    for (FeatureTreeItem *item : qAsConst(items)) {
        if (auto *feature = qobject_cast<FeatureTreeINodeItem *>(item)) {
            features.append(feature);
            feature->subscribe();
            connect(feature, &FeatureTreeINodeItem::nodeUpdated, this,
                    &CFeatureTableModel::onNodeUpdated, Qt::UniqueConnection);
        }
    }
    endInsertRows();
    for (const QPointer<FeatureTreeINodeItem> &feature : qAsConst(features)) {
        if (feature) {
            feature->requestRefresh();
        }
    }
}

void CFeatureTableModel::clear()
{
    if (m_rows.size() == 0) {
        return;
    }
    beginRemoveRows(QModelIndex(), 0, m_rows.size() - 1);
    while (m_rows.size() > 0) {
        if (FeatureTreeItem *item = m_rows.takeFirst()) {
            release(item);
        }
    }
    endRemoveRows();
}

void CFeatureTableModel::release(FeatureTreeItem *item) const
{
    if (auto *feature = qobject_cast<FeatureTreeINodeItem *>(item)) {
        feature->unsubscribe();
        disconnect(feature, &FeatureTreeINodeItem::nodeUpdated, this,
                   &CFeatureTableModel::onNodeUpdated);
    }
    if (item->depth() == 0 && !item->parent()) {
        delete item;
    }
}

void CFeatureTableModel::moveItem(QModelIndex source, QModelIndex target, bool up)
{
    if (!source.isValid() || !target.isValid()) {
        return;
    }
    const int from = source.row();
    const int to = target.row();
    const QModelIndex parent = source.parent();
    if (beginMoveRows(parent, from, from, parent, up ? to : to + 1)) {
        m_rows.move(from, to);
        endMoveRows();
        Q_EMIT orderOfItemsChanged(from, to);
    }
}

QModelIndex CFeatureTableModel::index(int row, int column, const QModelIndex &parent) const
{
    Q_UNUSED(parent) // no row has children
    return row >= 0 && row < m_rows.size() ? createIndex(row, column, m_rows.at(row))
                                           : QModelIndex();
}

int CFeatureTableModel::rowCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent) // the same for each, which is meant
    return m_rows.size();
}

int CFeatureTableModel::columnCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return 2;
}

QVariant CFeatureTableModel::data(const QModelIndex &index, int role) const
{
    const FeatureTreeItem *item = itemFromIndex(index);
    if (!item) {
        return {};
    }
    QVariant answer;
    const bool answered = runGuarded([&] { answer = item->data(index.column(), role); });
    if (!answered && !m_getFailureLogged) {
        logFault(__LINE__, QStringLiteral("Failed to get a feature value"));
    }
    m_getFailureLogged = !answered;
    return answer;
}

bool CFeatureTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const QPointer<FeatureTreeItem> item(itemFromIndex(index));
    if (!item || role != Qt::EditRole || index.column() != 1 || !value.isValid() || !m_active) {
        return false;
    }
    const QPointer<CFeatureTableModel> self(this); // a write may end in anything
    const auto fail = [&](const auto &show) {
        auto *feature = qobject_cast<FeatureTreeINodeItem *>(item);
        if (feature && feature->editorKind() == ItemEditorKind::CommandButton) {
            feature->requestRefresh();
        }
        if (self && m_active) {
            show(QStringLiteral("Plugin::Tessera::Internal::Model::CFeatureTableModel::setData"),
                 tr("Failed to set a feature value."));
        }
        return false;
    };
    const auto failWith = [&fail](const auto &e) {
        return fail([&e](const QString &where, const QString &message) {
            showException(where, e, message, nullptr);
        });
    };
    try {
        // The new value comes first: Qt converts the second operand to the type of the first.
        if (!(value == item->data(1, Qt::EditRole))) {
            item->setData(1, value, Qt::EditRole);
        }
        return true;
    } catch (const std::exception &e) {
        return failWith(e);
    } catch (const Core::Exception::BaseException &e) {
        return failWith(e);
    } catch (const GenICam::GenericException &e) {
        return failWith(e);
    } catch (...) {
        return fail([](const QString &where, const QString &message) {
            showUnexpectedException(where, message, nullptr);
        });
    }
}

QVariant CFeatureTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        if (section == 0) {
            return tr("Feature");
        }
        if (section == 1) {
            return tr("Value");
        }
    }
    return {};
}

Qt::ItemFlags CFeatureTableModel::flags(const QModelIndex &index) const
{
    const FeatureTreeItem *item = itemFromIndex(index);
    return item ? item->flags(index.column()) : Qt::ItemIsEnabled;
}

QMimeData *CFeatureTableModel::mimeData(const QModelIndexList &indexes) const
{
    QMimeData *payload = QAbstractTableModel::mimeData(indexes);
    addParameterPath(payload, itemFromIndex(indexes.value(0)));
    return payload;
}

bool CFeatureTableModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                         int column, const QModelIndex &parent) const
{
    Q_UNUSED(row)
    Q_UNUSED(column)
    return action == Qt::MoveAction && parent.isValid() && parent.column() == 0 && data
        && data->hasText() && parent.model() == this;
}

// A drop lands on a row, never between two.
bool CFeatureTableModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                      int column, const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent)) {
        return false;
    }
    const int from = rowOfName(data->text());
    const int to = parent.row();
    if (from < 0 || to >= m_rows.size()) {
        return false;
    }
    // Onto itself is a move as well, if one that leaves the order.
    if (from != to) {
        if (!beginMoveRows(QModelIndex(), from, from, QModelIndex(), from < to ? to + 1 : to)) {
            return false;
        }
        m_rows.move(from, to);
        endMoveRows();
    }
    Q_EMIT orderOfItemsChanged(from, to);
    return true;
}

Qt::DropActions CFeatureTableModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

int CFeatureTableModel::rowOfName(const QString &fullName) const
{
    for (int row = 0; row < m_rows.size(); ++row) {
        const FeatureTreeItem *item = m_rows.at(row);
        if (item && item->fullName() == fullName) {
            return row;
        }
    }
    return -1;
}

QModelIndex CFeatureTableModel::createItemIndex(FeatureTreeItem *item, int column)
{
    return index(m_rows.rowOf(item), column);
}

QModelIndex CFeatureTableModel::indexOfItem(FeatureTreeItem *item, FeatureTreeItem *searchRoot,
                                            int column)
{
    Q_UNUSED(searchRoot)
    return createItemIndex(item, column);
}

QModelIndex CFeatureTableModel::indexOfName(const QString &fullName, FeatureTreeItem *searchRoot,
                                            int column)
{
    Q_UNUSED(searchRoot)
    return index(rowOfName(fullName), column);
}

QModelIndex CFeatureTableModel::indexOfRoleValue(int role, const QVariant &value,
                                                 FeatureTreeItem *searchRoot, int column)
{
    Q_UNUSED(searchRoot)
    for (int row = 0; row < m_rows.size(); ++row) {
        if (data(index(row, 0), role) == value) {
            return index(row, column);
        }
    }
    return {};
}

QList<FeatureTreeItem *> CFeatureTableModel::itemsForNames(QStringList &names)
{
    Q_UNUSED(names)
    QList<FeatureTreeItem *> items;
    for (int row = 0; row < m_rows.size(); ++row) {
        if (FeatureTreeItem *item = m_rows.at(row)) {
            items.append(item);
        }
    }
    return items;
}

void CFeatureTableModel::markFavorites(const QStringList &names)
{
    const FavoriteNames favorites(names);
    for (int row = 0; row < m_rows.size(); ++row) {
        if (FeatureTreeItem *item = m_rows.at(row)) {
            markFavorite(*item, favorites);
        }
    }
}

bool CFeatureTableModel::markFavoritesBelow(FeatureTreeItem *item, const QStringList &names)
{
    return item && markFavorite(*item, FavoriteNames(names));
}

void CFeatureTableModel::markSearchMatches(const QString &text)
{
    const SearchText searched(text);
    for (int row = 0; row < m_rows.size(); ++row) {
        if (FeatureTreeItem *item = m_rows.at(row)) {
            markSearchMatch(*item, searched);
        }
    }
}

bool CFeatureTableModel::markSearchBelow(FeatureTreeItem *item, const QString &text)
{
    return item && markSearchMatch(*item, SearchText(text));
}

void CFeatureTableModel::onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem)
{
    Q_UNUSED(row) // its place in the tree
    if (!m_active) {
        return;
    }
    const QPointer<FeatureTreeItem> item(nodeItem);
    for (const int column : {0, 1}) {
        const QModelIndex cell = createItemIndex(item, column);
        Q_EMIT dataChanged(cell, cell);
    }
}

void CFeatureTableModel::refreshAll()
{
    for (int row = 0; row < m_rows.size(); ++row) {
        const QModelIndex name = index(row, 0);
        Q_EMIT dataChanged(name, name);
    }
}

// An index from before a change of the rows may hold an item that is gone.
FeatureTreeItem *CFeatureTableModel::itemFromIndex(const QModelIndex &index) const
{
    auto *item = static_cast<FeatureTreeItem *>(index.internalPointer());
    return m_rows.at(index.row()) == item || m_rows.rowOf(item) >= 0 ? item : nullptr;
}

void CFeatureTableModel::setActive(bool active)
{
    m_active = active;
}

void CFeatureTableModel::setVisibility(int visibility)
{
    m_visibility = visibility;
}

int CFeatureTableModel::visibility() const
{
    return m_visibility;
}

void CFeatureTableModel::setAcceptUpdates(bool accept)
{
    m_acceptUpdates = accept;
}

bool CFeatureTableModel::acceptUpdates() const
{
    return m_acceptUpdates;
}

bool CFeatureTableModel::isUtf8() const
{
    return m_isUtf8;
}

// Polling is the tree's: its items are the ones shown here.

void CFeatureTableModel::setPolling(bool polling)
{
    Q_UNUSED(polling)
}

bool CFeatureTableModel::isPolling() const
{
    return false;
}

void CFeatureTableModel::setPollByInvalidation(bool invalidate)
{
    Q_UNUSED(invalidate)
}

void CFeatureTableModel::pollNodes(const QStringList &names)
{
    Q_UNUSED(names)
}

void CFeatureTableModel::onTimerPoll()
{
}

// These are matters of the proxy, of the tree and of the items.

void CFeatureTableModel::setFeatureNameFilter(const QStringList &names)
{
    Q_UNUSED(names)
}

void CFeatureTableModel::setShowUnavailable(bool show)
{
    Q_UNUSED(show)
}

void CFeatureTableModel::loadChildren(FeatureTreeINodeItem *parent,
                                      QSharedPointer<IParameter> parameter)
{
    Q_UNUSED(parent)
    Q_UNUSED(parameter)
}

void CFeatureTableModel::setSearchText(const QString *searchText)
{
    Q_UNUSED(searchText)
}

QString CFeatureTableModel::emptyText(QSharedPointer<IParameter> parameter) const
{
    Q_UNUSED(parameter)
    return {};
}

} // namespace Plugin::Tessera::Internal::Model
