// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretableview.h"

#include "tabstop.h"

#include "internal/legacy/tree/featuretreedelegate.h"
#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/model/featuretablemodel.h"
#include "plugin/constants/itemroles.h"
#include "plugin/services/exceptionbarrier.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace Plugin::Tessera::Internal::View {

namespace {

// Shared by all tables, which is meant.
const QAbstractItemModel *lastModel = nullptr;

} // namespace

CFeatureTableView::CFeatureTableView(QWidget *parent)
    : QTableView(parent)
    , m_features(lastModel)
{
    dressFeatureView(*this);
    setTabKeyNavigation(false);
    createModels();
    connect(this, &QWidget::customContextMenuRequested, this,
            &CFeatureTableView::onCustomContextMenuRequested);
}

CFeatureTableView::~CFeatureTableView() = default;

void CFeatureTableView::recreateModels()
{
    createModels();
}

void CFeatureTableView::createModels()
{
    auto *table = new Model::CFeatureTableModel;
    auto *proxy = makeFeatureProxy(table, &m_filterText, this);
    CFeatureTableView::setModel(proxy);
    m_delegate = new FeatureTreeDelegate(this, proxy, &m_filterText);
    setItemDelegate(m_delegate);
    connect(table, &Model::CFeatureTableModel::orderOfItemsChanged, this,
            &CFeatureTableView::orderOfTableItemsChanged);
}

// Rows that come back with a new layout are not announced as inserted, nor those that go as
// removed. What saves the focus comes before the base, which closes editors, the rest after it.
void CFeatureTableView::setModel(QAbstractItemModel *newModel)
{
    if (QAbstractItemModel *old = model()) {
        leaveEditor(focusedValue());
        disconnect(old, nullptr, this, nullptr);
    }
    if (newModel) {
        connect(newModel, &QAbstractItemModel::layoutAboutToBeChanged, this,
                &CFeatureTableView::rememberFocusedValue);
        connect(newModel, &QAbstractItemModel::layoutChanged, this,
                &CFeatureTableView::leaveLostEditor);
        connect(newModel, &QAbstractItemModel::modelAboutToBeReset, this,
                [this] { leaveEditor(focusedValue()); });
    }
    m_features.setModel(newModel);
    QTableView::setModel(newModel);
    if (newModel) {
        connect(newModel, &QAbstractItemModel::layoutChanged, this,
                &CFeatureTableView::openEditors);
        connect(newModel, &QAbstractItemModel::modelReset, this, &CFeatureTableView::openEditors);
    }
}

void CFeatureTableView::setConnectedToTreeView(bool connected)
{
    m_isConnectedToTreeView = connected;
    const auto *proxy = qobject_cast<FeatureTreeProxyModel *>(model());
    if (proxy && qobject_cast<Model::CFeatureTableModel *>(proxy->sourceModel())) {
        setDragDropMode(connected ? DragOnly : InternalMove);
        setAcceptDrops(!connected);
    }
}

bool CFeatureTableView::isConnectedToTreeView() const
{
    return m_isConnectedToTreeView;
}

QString &CFeatureTableView::filterText()
{
    return m_filterText;
}

void CFeatureTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    Q_EMIT onCurrentChanged(current);
    QTableView::currentChanged(current, previous);
}

// The place is reckoned from the view and not from its viewport, which is meant.
void CFeatureTableView::onCustomContextMenuRequested(QPoint menuAnchor)
{
    if (indexAt(menuAnchor).isValid()) {
        Q_EMIT contextualMenuRequested(mapToGlobal(menuAnchor));
    }
}

void CFeatureTableView::setVisibility(GenApi::EVisibility visibility)
{
    m_features.setLevel(visibility);
}

// The selection shows in the name only, not as a bar.
QStyleOptionViewItem CFeatureTableView::viewOptions() const
{
    QStyleOptionViewItem options = QTableView::viewOptions();
    QPalette &colors = options.palette;
    for (const auto group : {QPalette::Active, QPalette::Disabled, QPalette::Inactive}) {
        QColor text = colors.color(group, QPalette::Text);
        if (group == QPalette::Active) {
            text.setAlpha(128);
        }
        colors.setColor(group, QPalette::Highlight, QColor(0, 0, 0, 0));
        colors.setColor(group, QPalette::HighlightedText, text);
    }
    return options;
}

void CFeatureTableView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
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
    QTableView::dataChanged(topLeft, bottomRight, roles);
}

// What the base does, but for the painting: polling must not flicker.
void CFeatureTableView::refreshEditor(const QModelIndex &cell)
{
    if (QWidget *editor = indexWidget(cell)) {
        itemDelegate(cell)->setEditorData(editor, cell);
    }
}

void CFeatureTableView::updateName(const QModelIndex &name)
{
    if (name.data(SpanColumnsRole).toBool() && columnSpan(name.row(), 0) != 2) {
        setSpan(name.row(), 0, 1, 2);
    }
}

void CFeatureTableView::updateValue(const QModelIndex &value)
{
    const FeatureTreeItem *item = m_features.item(value);
    if (!item) {
        return;
    }
    const QPersistentModelIndex row(value); // a commit on the way may change the rows
    const bool shown = item->isVisibleAt(m_features.level());
    if (shown == isRowHidden(value.row())) {
        setRowShown(row, shown);
    }
    if (row.isValid()) {
        runGuarded([&] { updateEditor(row); });
    }
}

// An editor that stays open follows what can be used; one that the user opened does not outlive an
// update.
void CFeatureTableView::updateEditor(const QModelIndex &value)
{
    const FeatureTreeINodeItem *item = m_features.feature(value);
    if (!item) {
        return;
    }
    const bool isUsable = item->accessMode() >= 2 && item->isVisibleAt(m_features.level());
    QWidget *editor = indexWidget(value);
    if (!editor) {
        if (isUsable) {
            openInlineEditor(value);
        }
    } else if (!isPersistentEditorOpen(value)) {
        return;
    } else if (!item->hasInlineEditor()) {
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    } else if (!isUsable) {
        leaveEditor(value);
        closePersistentEditor(value);
    }
}

void CFeatureTableView::setRowShown(const QModelIndex &value, bool shown)
{
    const int row = value.row();
    if (shown) {
        showRow(row);
        return;
    }
    const QPersistentModelIndex cell(value);
    leaveEditor(value);
    if (!cell.isValid()) {
        return;
    }
    const QModelIndex current = currentIndex();
    const bool wasCurrent = current.row() == cell.row() && current.parent() == cell.parent();
    hideRow(cell.row());
    if (wasCurrent) {
        Q_EMIT onCurrentChanged(QModelIndex());
    }
}

bool CFeatureTableView::lacksEditor(const QModelIndex &value) const
{
    return m_features.wantsEditor(value) && !indexWidget(value);
}

void CFeatureTableView::openInlineEditor(const QModelIndex &value)
{
    if (!m_features.mayOpenEditor(value)) {
        return;
    }
    openPersistentEditor(value);
    QWidget *editor = indexWidget(value);
    if (!editor) {
        return;
    }
    editor->installEventFilter(this);
    const QList<QWidget *> parts = editor->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        if (part->window() == window() && part->focusPolicy() != Qt::NoFocus) {
            part->installEventFilter(this);
        }
        // The base selects the text of a line, which looks as if it had the keyboard.
        if (auto *line = qobject_cast<QLineEdit *>(part)) {
            line->deselect();
        }
    }
}

void CFeatureTableView::openEditors()
{
    const int rows = m_features.extension() ? model()->rowCount() : 0;
    for (int row = 0; row < rows; ++row) {
        const QModelIndex value = model()->index(row, 1);
        if (lacksEditor(value)) {
            openInlineEditor(value);
        }
    }
}

void CFeatureTableView::rowsInserted(const QModelIndex &parent, int start, int end)
{
    QTableView::rowsInserted(parent, start, end);
    openEditors();
}

// The base closes the editors of the rows.
void CFeatureTableView::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    const QModelIndex value = focusedValue();
    if (value.row() >= start && value.row() <= end) {
        leaveEditor(value);
    }
    QTableView::rowsAboutToBeRemoved(parent, start, end);
}

// A change of the current cell opens an editor only where a click made it, and never moves the
// focus into one that is open: keys that were meant for the table would change values.
bool CFeatureTableView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (trigger == CurrentChanged && (!m_isPressing || isPersistentEditorOpen(index))) {
        return false;
    }
    return QTableView::edit(index, trigger, event);
}

void CFeatureTableView::mousePressEvent(QMouseEvent *event)
{
    const QScopedValueRollback<bool> pressing(m_isPressing, true);
    QTableView::mousePressEvent(event);
}

void CFeatureTableView::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (isPlain && enterValue(*event)) {
        event->accept();
    } else {
        QTableView::keyPressEvent(event);
    }
}

// True where the key has done something to the value of the current row.
bool CFeatureTableView::enterValue(const QKeyEvent &event)
{
    const QModelIndex value = currentIndex();
    const bool isEnterKey =
        event.key() == Qt::Key_F2 || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Return;
    if (value.column() != 1 || !(isEnterKey || event.key() == Qt::Key_Space)) {
        return false;
    }
    QWidget *editor = indexWidget(value);
    auto *button = qobject_cast<QAbstractButton *>(editor);
    if (button && button->focusPolicy() == Qt::NoFocus) {
        if (!event.isAutoRepeat()) {
            button->click();
        }
        return true;
    }
    if (editor && isEnterKey) {
        editor->setFocus(Qt::TabFocusReason); // selects the text
        return true;
    }
    return isEnterKey && edit(value, EditKeyPressed, nullptr);
}

// Tab leaves the table for the next control, past the editors in it.
bool CFeatureTableView::focusNextPrevChild(bool next)
{
    if (!hasFocus()) {
        return QTableView::focusNextPrevChild(next);
    }
    QWidget *target = nextTabStop(this, next);
    if (!target) {
        return false;
    }
    target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

// Escape in any part of an editor goes back to the table.
bool CFeatureTableView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        const QModelIndex value = focusedValue();
        if (QWidget *editor = value.isValid() ? indexWidget(value) : nullptr) {
            leaveEditor(value);
            itemDelegate(value)->setEditorData(editor, value); // what the device has
            return true;
        }
    }
    return QTableView::eventFilter(watched, event);
}

void CFeatureTableView::commitData(QWidget *editor)
{
    if (!m_dropsInput) {
        QTableView::commitData(editor);
    }
}

QModelIndex CFeatureTableView::focusedValue() const
{
    const QWidget *part = QApplication::focusWidget();
    if (!part || !viewport()->isAncestorOf(part)) {
        return {};
    }
    while (part->parentWidget() != viewport()) {
        part = part->parentWidget();
    }
    return indexAt(part->geometry().center());
}

// Takes the keyboard from an editor that is about to go. Otherwise it would move on from inside the
// closing, and with it the current row. What the user has begun to type is dropped.
void CFeatureTableView::leaveEditor(const QModelIndex &value)
{
    const QWidget *editor = value.isValid() ? indexWidget(value) : nullptr;
    const QWidget *focus = QApplication::focusWidget();
    if (!editor || !focus || (editor != focus && !editor->isAncestorOf(focus))) {
        return;
    }
    const QScopedValueRollback<bool> dropping(m_dropsInput, true);
    setFocus(Qt::OtherFocusReason);
}

void CFeatureTableView::rememberFocusedValue()
{
    m_focusedValue = focusedValue();
}

void CFeatureTableView::leaveLostEditor()
{
    const QWidget *focus = QApplication::focusWidget();
    if (!m_focusedValue.isValid() && focus && viewport()->isAncestorOf(focus)) {
        const QScopedValueRollback<bool> dropping(m_dropsInput, true);
        setFocus(Qt::OtherFocusReason);
    }
    m_focusedValue = QPersistentModelIndex();
}

} // namespace Plugin::Tessera::Internal::View
