// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// The part of the browser that follows the selection: the category whose features the table shows,
// the current feature, and the place of a feature among those of a user tab.

#include "featuretreewidget.h"

#include "browserlog.h"
#include "browserwidgets.h"
#include "searchedit.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "internal/model/featuretablemodel.h"
#include "internal/view/featuretableview.h"

#include <QAction>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QScrollBar>

#include <algorithm>

void FeatureTreeWidget::onSelectedChanged(const QItemSelection &selected,
                                          const QItemSelection &deselected)
{
    if (m_userTabMode) {
        return;
    }
    rememberScrolling(deselected);
    const QModelIndexList indexes = selected.indexes();
    FeatureTreeItem *item =
        indexes.isEmpty() ? nullptr : treeProxy()->itemFromIndex(indexes.constFirst());
    QList<FeatureTreeItem *> items;
    if (item) {
        m_category = item;
        item->childCount(); // loads them
        items = item->findChildren<FeatureTreeItem *>(QString(), Qt::FindDirectChildrenOnly);
    }
    setTableItems(items);
    tableProxy()->markFavorites(useCaseNames(m_ui->useCaseComboBox->currentIndex()));
    tableProxy()->refreshAll();
    if (m_category) {
        m_ui->tableView->verticalScrollBar()->setValue(
            m_scrollMemory.value(m_category->fullName(), 0));
    }
}

void FeatureTreeWidget::rememberScrolling(const QItemSelection &deselected)
{
    const QModelIndexList indexes = deselected.indexes();
    const FeatureTreeItem *item =
        indexes.isEmpty() ? nullptr : treeProxy()->itemFromIndex(indexes.constFirst());
    if (item) {
        m_scrollMemory.insert(item->fullName(), m_ui->tableView->verticalScrollBar()->value());
    }
}

void FeatureTreeWidget::onCurrentChanged(const QModelIndex &current)
{
    const auto *proxy = qobject_cast<const FeatureTreeProxyModel *>(current.model());
    if (!proxy) {
        return;
    }
    const FeatureTreeItem *item = proxy->itemFromIndex(current);
    if (!item) {
        logBrowserFault(
            QStringLiteral("Only the invalid/empty model index is allowed to have an internal "
                           "pointer of nullptr"));
        Q_EMIT onCurrentChanged(QSharedPointer<ParameterCollection::IParameter>());
        return;
    }
    const auto *nodeItem = qobject_cast<const FeatureTreeINodeItem *>(item);
    const auto parameter =
        nodeItem ? nodeItem->parameter() : QSharedPointer<ParameterCollection::IParameter>();
    const QString text = parameter ? QString() : item->statusText();
    // Typing in the search leaves the documentation where it is.
    if (!m_ui->filterEdit->hasFocus()) {
        Q_EMIT onCurrentChanged(parameter);
    }
    if (!text.isEmpty()) {
        Q_EMIT onNewText(text);
    }
}

void FeatureTreeWidget::contextualMenu(QPoint point)
{
    auto menu = QSharedPointer<QMenu>::create();
    if (m_userTabMode && m_ui->tableView->currentIndex().isValid()) {
        menu->addAction(m_actionMoveFavouriteUp);
        menu->addAction(m_actionMoveFavouriteDown);
        menu->addSeparator();
    }
    Q_EMIT contextMenuRequested(point, menu);
}

void FeatureTreeWidget::onTableSelectionChanged(const QItemSelection &selected,
                                                const QItemSelection &deselected)
{
    Q_UNUSED(deselected)
    const QModelIndexList indexes = selected.indexes();
    setMoveActions(indexes.isEmpty() ? QModelIndex() : indexes.constFirst());
}

void FeatureTreeWidget::setMoveActions(const QModelIndex &index)
{
    if (m_userTabMode) {
        m_actionMoveFavouriteUp->setEnabled(index.isValid() && index.row() >= 1);
        m_actionMoveFavouriteDown->setEnabled(index.isValid()
                                              && index.row() < index.model()->rowCount() - 1);
    }
}

void FeatureTreeWidget::onFavoriteMoveUp_triggered()
{
    moveFavorite(-1);
}

void FeatureTreeWidget::onFavoriteMoveDown_triggered()
{
    moveFavorite(1);
}

void FeatureTreeWidget::moveFavorite(int rows)
{
    const QModelIndex index = m_ui->tableView->currentIndex();
    if (!index.isValid()) {
        return;
    }
    const QModelIndex neighbour = index.sibling(index.row() + rows, index.column());
    tableModel()->moveItem(tableProxy()->mapToSource(index), tableProxy()->mapToSource(neighbour),
                           rows < 0);
}
