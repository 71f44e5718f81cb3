// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreewidget.h"

#include "featuretext.h"
#include "plainvaluedelegate.h"
#include "shownrows.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "plugin/constants/objectnames.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace ObjectNames = Plugin::Tessera::ObjectNames;

FeatureTreeWidget::FeatureTreeWidget(QString filterSubPath,
                                     Core::AppCoreComponents::BaseInfoPtr sourceInfo,
                                     QWidget *parent)
    : QWidget(parent)
    , m_filterSubPath(std::move(filterSubPath))
    , m_sourceInfo(std::move(sourceInfo))
    , m_model(new FeatureTreeModel(this))
    , m_treeView(new QTreeView(this))
{
    setObjectName(QLatin1String(ObjectNames::Browser));
    setWindowTitle(QStringLiteral("FeatureTreeWidget"));
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    setMinimumSize(200, 300);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(m_treeView);

    m_treeView->setObjectName(QLatin1String(ObjectNames::TreeView));
    m_treeView->setContextMenuPolicy(Qt::CustomContextMenu);
    m_treeView->setEditTriggers(QAbstractItemView::DoubleClicked
                                | QAbstractItemView::EditKeyPressed);
    m_treeView->setUniformRowHeights(true);
    m_treeView->setItemDelegate(new PlainValueDelegate(m_treeView, m_model));
    attachView();
    m_treeView->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_shownRows = new ShownRows(m_treeView, m_model, this);
    connect(m_treeView, &QWidget::customContextMenuRequested, this,
            &FeatureTreeWidget::contextualMenu);
}

FeatureTreeWidget::~FeatureTreeWidget() = default;

void FeatureTreeWidget::attachView()
{
    m_treeView->setModel(m_model);
    connect(m_treeView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            qOverload<const QModelIndex &>(&FeatureTreeWidget::onCurrentChanged));
}

QSize FeatureTreeWidget::sizeHint() const
{
    return {484, 300};
}

void FeatureTreeWidget::addParameterCollection(
    QSharedPointer<ParameterCollection::IParameterCollection> pParameterCollection,
    const QString &rootName, const QString &roleName, bool isUtf8)
{
    m_model->addParameterCollection(pParameterCollection, rootName, roleName, isUtf8);
    m_model->refreshAll();
    const QModelIndex top = m_model->index(0, 0);
    m_treeView->expand(top);
    if (m_records.isEmpty()) {
        // So that values are seen at once.
        m_treeView->expand(m_model->index(0, 0, top));
    }
    if (pParameterCollection) {
        m_records.append({rootName, roleName, pParameterCollection, isUtf8});
    }
}

void FeatureTreeWidget::copyToClipboard()
{
    QGuiApplication::clipboard()->setText(featureText(m_records));
}

// The model drops its items without a word, so nothing may hold an index of it meanwhile. A view
// that loses its model closes its editors without writing what was typed.
void FeatureTreeWidget::clear()
{
    m_shownRows->release();
    QItemSelectionModel *selection = m_treeView->selectionModel();
    m_treeView->setModel(nullptr);
    delete selection;
    m_model->clear();
    attachView();
}

void FeatureTreeWidget::expandTree()
{
    m_treeView->expandAll();
    m_shownRows->sync();
}

void FeatureTreeWidget::refresh()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    m_model->pollNodes({});
    QGuiApplication::restoreOverrideCursor();
}

FeatureTreeItem *FeatureTreeWidget::currentItem() const
{
    return m_model->itemFromIndex(m_treeView->currentIndex());
}

void FeatureTreeWidget::onCurrentChanged(const QModelIndex &current)
{
    const FeatureTreeItem *item = m_model->itemFromIndex(current);
    if (!item) {
        return;
    }
    const auto *nodeItem = qobject_cast<const FeatureTreeINodeItem *>(item);
    const auto parameter =
        nodeItem ? nodeItem->parameter() : QSharedPointer<ParameterCollection::IParameter>();
    const QString text = parameter ? QString() : item->statusText();
    Q_EMIT onCurrentChanged(parameter);
    if (!text.isEmpty()) {
        Q_EMIT onNewText(text);
    }
}

void FeatureTreeWidget::onVisibilityChanged(int value)
{
    if (value < GenApi::Beginner || value > GenApi::Invisible) {
        return;
    }
    m_model->setVisibility(value);
    m_shownRows->applyVisibility();
    Q_EMIT visibilityChanged(static_cast<GenApi::EVisibility>(value));
}

void FeatureTreeWidget::contextualMenu(QPoint point)
{
    Q_EMIT contextMenuRequested(m_treeView->viewport()->mapToGlobal(point),
                                QSharedPointer<QMenu>::create());
}
