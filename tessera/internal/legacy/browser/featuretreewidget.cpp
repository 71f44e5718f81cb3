// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreewidget.h"

#include "browserlog.h"
#include "browsershortcuts.h"
#include "browserwidgets.h"
#include "escapepresses.h"
#include "featuretext.h"
#include "filterfile.h"
#include "searchedit.h"
#include "splittercolumns.h"
#include "usertabrows.h"
#include "waitcursor.h"

#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "internal/model/featuretablemodel.h"
#include "internal/view/featuretableview.h"
#include "internal/view/screenratio.h"
#include "internal/view/tabstop.h"
#include "internal/view/treeviewheaderview.h"
#include "internal/view/usecaseedit.h"
#include "plugin/contract/viewer/devicebaseinfo.h"
#include "plugin/contract/viewer/parameterservice.h"
#include "plugin/services/exceptionbarrier.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QIcon>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QPushButton>
#include <QSplitter>

#include <algorithm>
#include <iterator>
#include <utility>

using Core::CameraPoolComponents::IDeviceBaseInfo;
using ParameterCollection::ParameterName;
using Plugin::Tessera::Internal::Model::CFeatureTableModel;
using Plugin::Tessera::Internal::View::CFeatureTableView;
using Plugin::Tessera::Internal::View::CTreeViewHeaderView;
using Plugin::Tessera::Internal::View::CUseCaseEdit;

namespace {

// In pixels at 96 dpi.
constexpr double categoryColumnWidth = 250.0;
constexpr double nameColumnWidth = 240.0;

QStringList texts(const QList<ParameterName> &names)
{
    QStringList result;
    std::transform(names.cbegin(), names.cend(), std::back_inserter(result),
                   [](const ParameterName &name) { return name.toString(); });
    return result;
}

void useHeader(QHeaderView *header)
{
    header->setFixedHeight(header->sizeHint().height());
}

} // namespace

FeatureTreeWidget::FeatureTreeWidget(QString filterSubPath,
                                     Core::AppCoreComponents::BaseInfoPtr sourceInfo,
                                     QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<BrowserWidgets>(this))
    , m_filterSubPath(std::move(filterSubPath))
    , m_sourceInfo(std::move(sourceInfo))
    , m_columns(new SplitterColumns(m_ui->splitter))
{
    QMetaObject::connectSlotsByName(this);
    replaceHeaders();
    connectWidgets();
    m_ui->treeView->setSelectionBehavior(QAbstractItemView::SelectRows);
    createActions();
    connect(m_ui->checkBoxUnavailableFavs, &QCheckBox::toggled, this,
            &FeatureTreeWidget::onCheckBoxUnavailableFavsTriggered);
    onPollingStateChanged(false);
    connectTable();
    m_ui->filterEdit->setHelpText(tr("Search for parameters"));
}

// The table's rows are items of the tree.
FeatureTreeWidget::~FeatureTreeWidget()
{
    delete m_ui->tableView;
    delete m_ui->treeView;
}

void FeatureTreeWidget::replaceHeaders()
{
    auto *treeHeader = new CTreeViewHeaderView(m_ui->treeView);
    m_ui->treeView->setHeader(treeHeader);
    useHeader(treeHeader);
    treeHeader->setStretchLastSection(false);
    auto *tableHeader = new CTreeViewHeaderView(m_ui->tableView);
    m_ui->tableView->setHorizontalHeader(tableHeader);
    useHeader(tableHeader);
    tableHeader->setStretchLastSection(true);
    // Until the user chooses other widths; the usual names fit.
    setCategoryColumnWidth(static_cast<int>(screenRatio() * categoryColumnWidth));
    m_ui->tableView->setColumnWidth(0, static_cast<int>(screenRatio() * nameColumnWidth));
    m_ui->treeView->setMouseTracking(true);
    m_ui->tableView->setMouseTracking(true);
}

void FeatureTreeWidget::connectWidgets()
{
    const auto currentChanged =
        qOverload<const QModelIndex &>(&FeatureTreeWidget::onCurrentChanged);
    connect(m_ui->useCaseEdit, &CUseCaseEdit::onCrossActionTriggered, this,
            &FeatureTreeWidget::onUseCaseEditAction);
    connect(m_ui->treeView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FeatureTreeWidget::onSelectedChanged);
    connect(m_ui->treeView, &FeatureTreeView::onCurrentChanged, this, currentChanged);
    connect(m_ui->tableView, &CFeatureTableView::onCurrentChanged, this, currentChanged);
    connect(this, &FeatureTreeWidget::pollingStateChanged, this,
            &FeatureTreeWidget::onPollingStateChanged);
    connect(m_ui->filterEdit, &QLineEdit::textChanged, this,
            &FeatureTreeWidget::onFilterTextChanged);
    connect(m_ui->filterEdit, &QLineEdit::textChanged, &EscapePresses::instance(),
            &EscapePresses::reset);
    connect(m_ui->treeView, &FeatureTreeView::contextualMenuRequested, this,
            &FeatureTreeWidget::contextualMenu);
    connect(m_ui->tableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FeatureTreeWidget::onTableSelectionChanged);
    connect(m_ui->tableView, &CFeatureTableView::contextualMenuRequested, this,
            &FeatureTreeWidget::contextualMenu);
    connect(m_ui->checkBoxShowTreeView, &QCheckBox::clicked, this,
            &FeatureTreeWidget::onShowTreeViewClicked);
}

void FeatureTreeWidget::createActions()
{
    m_actionTogglePolling = new QAction(tr("Polling"), this);
    m_actionTogglePolling->setObjectName(QStringLiteral("actionTogglePolling"));
    m_actionTogglePolling->setCheckable(true);
    m_actionTogglePolling->setChecked(m_ui->checkBoxPolling->isChecked());
    m_actionTogglePolling->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(m_actionTogglePolling, &QAction::triggered, this,
            &FeatureTreeWidget::togglePolling_triggered);
    m_actionMoveFavouriteUp =
        createMoveAction(QStringLiteral("Move_Up.png"), tr("Move Up"), tr("Ctrl+Up"));
    m_actionMoveFavouriteUp->setObjectName(QStringLiteral("actionMoveFavouriteUp"));
    connect(m_actionMoveFavouriteUp, &QAction::triggered, this,
            &FeatureTreeWidget::onFavoriteMoveUp_triggered);
    m_actionMoveFavouriteDown =
        createMoveAction(QStringLiteral("Move_Down.png"), tr("Move Down"), tr("Ctrl+Down"));
    m_actionMoveFavouriteDown->setObjectName(QStringLiteral("actionMoveFavouriteDown"));
    connect(m_actionMoveFavouriteDown, &QAction::triggered, this,
            &FeatureTreeWidget::onFavoriteMoveDown_triggered);
    new BrowserShortcuts(this, *m_ui);
}

QAction *FeatureTreeWidget::createMoveAction(const QString &iconFile, const QString &text,
                                             const QString &keys)
{
    auto *action = new QAction(this);
    action->setIcon(QIcon(QLatin1String(":/vantrelviewercomponents/Resources/") + iconFile));
    action->setIconText(text);
    action->setShortcut(QKeySequence(keys));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setShortcutVisibleInContextMenu(true);
    action->setEnabled(false);
    addAction(action);
    return action;
}

void FeatureTreeWidget::connectTable()
{
    connect(m_ui->tableView, &CFeatureTableView::orderOfTableItemsChanged, this,
            &FeatureTreeWidget::orderOfTableItemsChanged);
    connect(m_ui->tableView, &CFeatureTableView::orderOfTableItemsChanged, this,
            [this] { setMoveActions(m_ui->tableView->currentIndex()); });
    connect(m_ui->tableView->horizontalHeader(), &QHeaderView::sectionResized, this,
            &FeatureTreeWidget::tableViewSectionResized);
    connect(m_ui->splitter, &QSplitter::splitterMoved, this, &FeatureTreeWidget::splitterMoved);
}

const FeatureTreeView *FeatureTreeWidget::treeView() const
{
    return m_ui->treeView;
}

FeatureTreeView *FeatureTreeWidget::treeView()
{
    return m_ui->treeView;
}

const CFeatureTableView *FeatureTreeWidget::tableView() const
{
    return m_ui->tableView;
}

CFeatureTableView *FeatureTreeWidget::tableView()
{
    return m_ui->tableView;
}

FeatureTreeProxyModel *FeatureTreeWidget::treeProxy() const
{
    return qobject_cast<FeatureTreeProxyModel *>(m_ui->treeView->model());
}

FeatureTreeProxyModel *FeatureTreeWidget::tableProxy() const
{
    return qobject_cast<FeatureTreeProxyModel *>(m_ui->tableView->model());
}

CFeatureTableModel *FeatureTreeWidget::tableModel() const
{
    return qobject_cast<CFeatureTableModel *>(tableProxy()->sourceModel());
}

void FeatureTreeWidget::setTableItems(const QList<FeatureTreeItem *> &items)
{
    tableModel()->setItems(items, tableModel()->isUtf8());
}

QSize FeatureTreeWidget::sizeHint() const
{
    return {484, 300};
}

void FeatureTreeWidget::setUserTabMode(bool userTabMode)
{
    m_userTabMode = userTabMode;
    const bool hasUseCase = m_ui->useCaseComboBox->currentIndex() > 0;
    m_ui->useCaseEdit->setVisible(!userTabMode && hasUseCase);
    m_ui->useCaseComboBox->setVisible(!userTabMode && !hasUseCase);
    m_ui->filterEdit->setVisible(!userTabMode);
    m_ui->treeView->setVisible(!userTabMode);
    m_ui->line->setVisible(!userTabMode);
    m_ui->addNewFavoriteButton->setVisible(!userTabMode);
    m_ui->checkBoxPolling->setVisible(!userTabMode);
    m_ui->checkBoxShowTreeView->setVisible(!userTabMode);
    m_ui->checkBoxUnavailableFavs->setVisible(userTabMode);
    m_ui->tableView->setConnectedToTreeView(!userTabMode);
    m_ui->tableView->horizontalHeader()->setStretchLastSection(true);
}

void FeatureTreeWidget::setAddNewFavoriteButtonVisible(bool visible)
{
    m_ui->addNewFavoriteButton->setVisible(visible);
}

void FeatureTreeWidget::setDeviceParameterService(
    QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> service)
{
    m_parameterService = std::move(service);
}

void FeatureTreeWidget::setFeatureNameList(const QList<ParameterName> &names)
{
    if (m_featureNames != names) {
        m_featureNames = names;
    }
    const QStringList fullNames = texts(m_featureNames);
    treeProxy()->setFeatureNameFilter(fullNames);
    if (m_userTabMode) {
        setTableItems(userTabItems(fullNames));
    } else {
        tableProxy()->setFeatureNameFilter(fullNames);
    }
}

QList<FeatureTreeItem *> FeatureTreeWidget::userTabItems(const QStringList &names) const
{
    CollectionPtr collection;
    if (m_parameterService) {
        Plugin::Tessera::runGuarded(
            [&] { collection = m_parameterService->parameterCollection(m_sourceInfo); });
    } else {
        logBrowserFault(QStringLiteral("Plugin::CameraPool::IDeviceParameterService not set!"));
    }
    return UserTabRows(collection, m_records, *treeProxy(), *tableModel()).make(names);
}

void FeatureTreeWidget::setCategoryColumnWidth(int width)
{
    m_columns->setTreeWidth(width);
}

void FeatureTreeWidget::setFirstSectionSize(int width)
{
    if (width >= 0) {
        m_ui->tableView->setColumnWidth(0, width);
    }
}

FeatureTreeItem *FeatureTreeWidget::currentItem() const
{
    const QModelIndex tableIndex = m_ui->tableView->currentIndex();
    return tableIndex.isValid() ? tableProxy()->itemFromIndex(tableIndex)
                                : treeProxy()->itemFromIndex(m_ui->treeView->currentIndex());
}

void FeatureTreeWidget::addParameterCollection(
    QSharedPointer<ParameterCollection::IParameterCollection> pParameterCollection,
    const QString &rootName, const QString &roleName, bool isUtf8)
{
    if (m_sourceInfo && m_sourceInfo->sourceCategory() == QLatin1String("Device")) {
        applyFilterFile(pParameterCollection, m_sourceInfo.objectCast<IDeviceBaseInfo>(), roleName);
    }
    treeProxy()->addParameterCollection(pParameterCollection, rootName, roleName, isUtf8);
    treeProxy()->refreshAll();
    if (treeProxy()->rowCount() > 0) {
        m_ui->treeView->expand(treeProxy()->index(0, 0));
        setFeatureNameList(m_featureNames);
    }
    if (pParameterCollection) {
        m_records.append({rootName, roleName, pParameterCollection, isUtf8});
    }
}

bool FeatureTreeWidget::applyFilterFile(const CollectionPtr &collection,
                                        const QSharedPointer<IDeviceBaseInfo> &device,
                                        const QString &roleName)
{
    return collection && device && FilterFile(device->modelName(), roleName).apply(*collection);
}

// The table first: its rows are items of the tree.
void FeatureTreeWidget::clear()
{
    m_category.clear();
    tableProxy()->clear();
    treeProxy()->clear();
}

void FeatureTreeWidget::expandTree()
{
    m_ui->treeView->expandAll();
}

void FeatureTreeWidget::copyToClipboard()
{
    QGuiApplication::clipboard()->setText(featureText(m_records));
}

void FeatureTreeWidget::refresh()
{
    const WaitCursor waiting;
    treeProxy()->pollNodes({});
}

void FeatureTreeWidget::setMonitorMode(bool bMonitorMode)
{
    treeProxy()->setPollByInvalidation(bMonitorMode);
}

void FeatureTreeWidget::onPollingStateChanged(bool newState)
{
    if (m_userTabMode) {
        return;
    }
    treeProxy()->setPolling(newState);
    m_ui->checkBoxPolling->setChecked(newState);
    m_actionTogglePolling->setChecked(newState);
}

void FeatureTreeWidget::on_checkBoxPolling_clicked()
{
    Q_EMIT pollingStateChanged(m_ui->checkBoxPolling->isChecked());
}

void FeatureTreeWidget::togglePolling_triggered()
{
    Q_EMIT pollingStateChanged(m_actionTogglePolling->isChecked());
}

void FeatureTreeWidget::on_resetButton_clicked()
{
    refresh();
}

void FeatureTreeWidget::on_addNewFavoriteButton_clicked()
{
    Q_EMIT addFavoriteButtonClicked();
}

void FeatureTreeWidget::tableViewSectionResized(int logicalIndex, int oldSize, int size)
{
    if (logicalIndex == 0 && oldSize >= 0 && size >= 0) {
        Q_EMIT firstSectionSizeChanged(size, m_ui->tableView->isConnectedToTreeView());
    }
}

void FeatureTreeWidget::splitterMoved(int pos, int index)
{
    Q_UNUSED(pos)
    Q_UNUSED(index)
    const QList<int> sizes = m_ui->splitter->sizes();
    if (sizes.size() == 3) {
        Q_EMIT categoryColumnWidthChanged(sizes.constFirst());
    }
}

bool FeatureTreeWidget::event(QEvent *event)
{
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::FontChange) {
        const QList<QWidget *> widgets = findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            QCoreApplication::sendEvent(widget, event);
        }
    }
    return isHandled;
}

// Tab passes over the editors in the table; so does Shift+Tab on its way back.
bool FeatureTreeWidget::focusNextPrevChild(bool next)
{
    CFeatureTableView *table = m_ui->tableView;
    QWidget *from = focusWidget();
    const QWidget *stop =
        !next && from && !table->isAncestorOf(from) ? nextTabStop(from, false) : nullptr;
    if (stop && (stop == table || table->isAncestorOf(stop))) {
        table->setFocus(Qt::BacktabFocusReason);
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

// Two presses of Escape empty the search.
void FeatureTreeWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        EscapePresses::instance().reset();
    } else if (EscapePresses::instance().pressedAgain()) {
        m_ui->filterEdit->clear();
    }
    QWidget::keyPressEvent(event);
}
