// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreeview.h"

#include "featuretreedelegate.h"
#include "featuretreeinodeitem.h"
#include "featuretreemodel.h"
#include "featuretreeproxymodel.h"

#include "plugin/constants/itemroles.h"
#include "plugin/contract/viewer/stylehelper.h"

#include <QApplication>
#include <QPainter>
#include <QResizeEvent>

namespace {

// Shared by all trees, which is meant.
const QAbstractItemModel *lastModel = nullptr;

// A category stays for the sake of what can be seen below it.
bool isShownAt(FeatureTreeItem &item, int level)
{
    if (item.isVisibleAt(level)) {
        return true;
    }
    const int count = item.childCount();
    for (int row = 0; row < count; ++row) {
        if (isShownAt(*item.child(row), level)) {
            return true;
        }
    }
    return false;
}

} // namespace

FeatureTreeView::FeatureTreeView(QWidget *parent)
    : QTreeView(parent)
    , m_features(lastModel)
{
    dressFeatureView(*this);
    QPalette colors = palette();
    // The delegate shows the selection in bold.
    colors.setColor(QPalette::Highlight, Qt::transparent);
    setPalette(colors);
    setUniformRowHeights(true);
    createModels();
    connect(this, &QTreeView::expanded, this, &FeatureTreeView::onSelfExpanded);
    connect(this, &QWidget::customContextMenuRequested, this,
            &FeatureTreeView::onCustomContextMenuRequested);
}

FeatureTreeView::~FeatureTreeView() = default;

void FeatureTreeView::recreateModels()
{
    createModels();
}

void FeatureTreeView::createModels()
{
    auto *proxy = makeFeatureProxy(new FeatureTreeModel, &m_searchText, this);
    FeatureTreeView::setModel(proxy);
    m_delegate = new FeatureTreeDelegate(this, proxy, &m_searchText);
    setItemDelegate(m_delegate);
}

FeatureTreeDelegate *FeatureTreeView::delegate() const
{
    return m_delegate;
}

QString *FeatureTreeView::searchTextPointer()
{
    return &m_searchText;
}

// Rows that come back with a new layout are not announced as inserted.
void FeatureTreeView::setModel(QAbstractItemModel *newModel)
{
    if (model()) {
        disconnect(model(), &QAbstractItemModel::layoutChanged, this,
                   &FeatureTreeView::openAllEditors);
        disconnect(model(), &QAbstractItemModel::modelReset, this,
                   &FeatureTreeView::openAllEditors);
    }
    m_features.setModel(newModel);
    QTreeView::setModel(newModel);
    if (newModel) {
        connect(newModel, &QAbstractItemModel::layoutChanged, this,
                &FeatureTreeView::openAllEditors);
        connect(newModel, &QAbstractItemModel::modelReset, this, &FeatureTreeView::openAllEditors);
    }
}

void FeatureTreeView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    Q_EMIT onCurrentChanged(current);
    QTreeView::currentChanged(current, previous);
}

// The place is reckoned from the view and not from its viewport, which is meant.
void FeatureTreeView::onCustomContextMenuRequested(QPoint menuAnchor)
{
    if (indexAt(menuAnchor).isValid()) {
        Q_EMIT contextualMenuRequested(mapToGlobal(menuAnchor));
    }
}

void FeatureTreeView::setVisibility(GenApi::EVisibility visibility)
{
    m_features.setLevel(visibility);
}

void FeatureTreeView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                  const QVector<int> &roles)
{
    if (topLeft == bottomRight && topLeft.isValid()) {
        if (topLeft.column() == 0) {
            updateName(topLeft);
        } else if (topLeft.column() == 1) {
            updateValue(topLeft);
        }
    }
    executeDelayedItemsLayout();
    if (m_features.isRepeating(topLeft)) {
        refreshEditor(topLeft);
        return;
    }
    QTreeView::dataChanged(topLeft, bottomRight, roles);
}

// What the base does, but for the painting: polling must not flicker.
void FeatureTreeView::refreshEditor(const QModelIndex &cell)
{
    if (QWidget *editor = indexWidget(cell)) {
        itemDelegate(cell)->setEditorData(editor, cell);
    }
}

void FeatureTreeView::updateName(const QModelIndex &name)
{
    const bool spans = name.data(SpanColumnsRole).toBool();
    if (spans != isFirstColumnSpanned(name.row(), name.parent())) {
        setFirstColumnSpanned(name.row(), name.parent(), spans);
    }
}

void FeatureTreeView::updateValue(const QModelIndex &value)
{
    FeatureTreeItem *item = m_features.item(value);
    if (!item) {
        return;
    }
    const bool shown = isShownAt(*item, m_features.level());
    const bool wasHidden = isRowHidden(value.row(), value.parent());
    if (!shown && wasHidden) {
        return;
    }
    const QPersistentModelIndex row(value); // a commit on the way may change the rows
    if (shown == wasHidden) {
        setRowShown(row, shown);
    }
    if (row.isValid()) {
        updateEditor(row);
    }
}

// An editor that stays open follows what can be used; one that the user opened does not outlive an
// update.
void FeatureTreeView::updateEditor(const QModelIndex &value)
{
    const FeatureTreeINodeItem *item = m_features.feature(value);
    if (!item) {
        return;
    }
    const bool isUsable = item->accessMode() >= 2 && !isRowHidden(value.row(), value.parent());
    QWidget *editor = indexWidget(value);
    if (!editor) {
        if (isUsable && item->hasInlineEditor()) {
            openInlineEditor(value);
        }
    } else if (!item->hasInlineEditor()) {
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    } else if (!isUsable) {
        const QPersistentModelIndex row(value);
        leaveEditor(row);
        closePersistentEditor(row);
    }
}

void FeatureTreeView::setRowShown(const QModelIndex &value, bool shown)
{
    const QPersistentModelIndex row(value);
    if (!shown) {
        leaveEditor(row);
    }
    if (!row.isValid()) {
        return;
    }
    const QModelIndex current = currentIndex();
    const bool wasCurrent = current.row() == row.row() && current.parent() == row.parent();
    setRowHidden(row.row(), row.parent(), !shown);
    if (!shown && wasCurrent) {
        Q_EMIT onCurrentChanged(QModelIndex());
    }
}

// Takes the keyboard from an editor that is about to go. Otherwise it would move on from inside the
// closing, and with it the current row. What the user has begun to type is dropped.
void FeatureTreeView::leaveEditor(const QModelIndex &value)
{
    QWidget *editor = indexWidget(value);
    const FeatureTreeINodeItem *item = m_features.feature(value);
    const QWidget *focus = QApplication::focusWidget();
    if (!editor || !item) {
        return;
    }
    if (!item->hasInlineEditor()) {
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    } else if (focus && (editor == focus || editor->isAncestorOf(focus))) {
        setFocus(Qt::OtherFocusReason);
    }
}

void FeatureTreeView::onSelfExpanded(QModelIndex index)
{
    syncRows(index);
    openEditors(index);
}

void FeatureTreeView::syncRows(const QModelIndex &parent)
{
    if (!m_features.extension() || !isExpanded(parent)) {
        return;
    }
    const QPersistentModelIndex category(parent);
    for (int row = 0; row < model()->rowCount(category); ++row) {
        const QModelIndex value = model()->index(row, 1, category);
        FeatureTreeItem *item = m_features.item(value);
        const bool shown = item && isShownAt(*item, m_features.level());
        if (shown == isRowHidden(row, category)) {
            setRowShown(value, shown);
        }
        if (shown && lacksEditor(value)) {
            openInlineEditor(value);
        }
        syncRows(model()->index(row, 0, category));
    }
}

void FeatureTreeView::openEditors(const QModelIndex &parent)
{
    if (!m_features.extension() || !isExpanded(parent)) {
        return;
    }
    const int rows = model()->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex value = model()->index(row, 1, parent);
        if (lacksEditor(value)) {
            openInlineEditor(value);
        }
    }
}

void FeatureTreeView::openEditorsBelow(const QModelIndex &parent)
{
    openEditors(parent);
    const int rows = model()->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex category = model()->index(row, 0, parent);
        if (isExpanded(category)) {
            openEditorsBelow(category);
        }
    }
}

void FeatureTreeView::openAllEditors()
{
    openEditorsBelow(QModelIndex());
}

bool FeatureTreeView::lacksEditor(const QModelIndex &value) const
{
    return m_features.wantsEditor(value) && !indexWidget(value);
}

void FeatureTreeView::openInlineEditor(const QModelIndex &value)
{
    if (m_features.mayOpenEditor(value)) {
        openPersistentEditor(value);
    }
}

void FeatureTreeView::rowsInserted(const QModelIndex &parent, int start, int end)
{
    QTreeView::rowsInserted(parent, start, end);
    openEditors(parent);
}

void FeatureTreeView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (model() && model()->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Active, QPalette::Text));
        painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignTop,
                         tr("No parameters match favorite selection."));
    }
}

void FeatureTreeView::resizeEvent(QResizeEvent *event)
{
    QAbstractItemView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        setColumnWidth(0, event->size().width());
    }
}
