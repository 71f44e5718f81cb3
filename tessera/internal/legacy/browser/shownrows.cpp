// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "shownrows.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"

#include <QTreeView>

#include <utility>

ShownRows::ShownRows(QTreeView *view, FeatureTreeModel *model, QObject *parent)
    : QObject(parent)
    , m_view(view)
    , m_model(model)
{
    connect(view, &QTreeView::expanded, this, &ShownRows::sync);
    connect(view, &QTreeView::collapsed, this, &ShownRows::sync);
    connect(model, &QAbstractItemModel::layoutChanged, this, &ShownRows::sync);
    connect(model, &QAbstractItemModel::rowsInserted, this, &ShownRows::onRowsInserted);
    connect(model, &QAbstractItemModel::dataChanged, this, &ShownRows::onDataChanged);
}

ShownRows::~ShownRows() = default;

void ShownRows::applyVisibility()
{
    hideRows(QModelIndex(), 0, m_model->rowCount() - 1, true);
    sync();
}

void ShownRows::sync()
{
    Items shown;
    collect(QModelIndex(), shown);
    const Items before = std::exchange(m_subscribed, shown);
    for (auto item = before.cbegin(); item != before.cend(); ++item) {
        // An address may have been used again for another item.
        if (item.value() && !shown.contains(item.key())) {
            item.value()->unsubscribe();
        }
    }
    for (auto item = shown.cbegin(); item != shown.cend(); ++item) {
        if (item.value() && !before.value(item.key())) {
            item.value()->subscribe();
            item.value()->requestRefresh();
        }
    }
}

void ShownRows::release()
{
    const Items before = std::exchange(m_subscribed, {});
    for (const QPointer<FeatureTreeINodeItem> &item : before) {
        if (item) {
            item->unsubscribe();
        }
    }
}

void ShownRows::onRowsInserted(const QModelIndex &parent, int first, int last)
{
    hideRows(parent, first, last, false);
    if (m_view->isExpanded(parent)) {
        sync();
    }
}

// The model announces a new snapshot for the name alone.
void ShownRows::onDataChanged(const QModelIndex &index)
{
    m_view->update(index.siblingAtColumn(1));
}

// Goes no deeper than what is loaded: rows that come later are hidden as they come.
void ShownRows::hideRows(const QModelIndex &parent, int first, int last, bool deep)
{
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        const FeatureTreeItem *item = m_model->itemFromIndex(index);
        const bool hidden = !item->isVisibleAt(m_model->visibility());
        if (hidden != m_view->isRowHidden(row, parent)) {
            m_view->setRowHidden(row, parent, hidden);
        }
        if (deep && item->child(0)) {
            hideRows(index, 0, m_model->rowCount(index) - 1, true);
        }
    }
}

void ShownRows::collect(const QModelIndex &parent, Items &items) const
{
    const int rows = m_model->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        if (m_view->isRowHidden(row, parent)) {
            continue;
        }
        const QModelIndex index = m_model->index(row, 0, parent);
        auto *item = qobject_cast<FeatureTreeINodeItem *>(m_model->itemFromIndex(index));
        if (item->hasChildren()) {
            if (m_view->isExpanded(index)) {
                collect(index, items);
            }
        } else {
            items.insert(item, item);
        }
    }
}
