// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// The part of the browser that marks and hides rows: search, use cases, level, tree shape.

#include "featuretreewidget.h"

#include "browserwidgets.h"
#include "categorypath.h"

#include "internal/legacy/tree/featuretreedelegate.h"
#include "internal/legacy/tree/featuretreeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "internal/view/featuretableview.h"
#include "internal/view/screenratio.h"
#include "internal/view/usecaseedit.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QScopeGuard>

#include <algorithm>

namespace {

constexpr double popupMargin = 20.0; // pixels at 96 dpi, beside the longest name of a use case

} // namespace

void FeatureTreeWidget::setUseCases(const QVariantMap &useCases)
{
    disconnect(m_ui->useCaseComboBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
               &FeatureTreeWidget::onUseCaseComboBoxCurrentIndexChanged);
    fillUseCases(useCases);
    m_ui->useCaseComboBox->setCurrentIndex(m_useCaseIndex);
    m_useCaseIndex = -1;
    onUseCaseComboBoxCurrentIndexChanged(m_ui->useCaseComboBox->currentIndex());
    connect(m_ui->useCaseComboBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &FeatureTreeWidget::onUseCaseComboBoxCurrentIndexChanged);
}

// The list is as wide as its longest name, whatever the width of the box.
void FeatureTreeWidget::fillUseCases(const QVariantMap &useCases)
{
    QComboBox *box = m_ui->useCaseComboBox;
    box->clear();
    int width = 0;
    for (auto useCase = useCases.cbegin(); useCase != useCases.cend(); ++useCase) {
        const QString name = tr(useCase.key().toUtf8().constData()); // clazy:exclude=tr-non-literal
        width = qMax(width, box->fontMetrics().horizontalAdvance(name));
        box->addItem(name, useCase.value());
    }
    box->view()->setMinimumWidth(width + static_cast<int>(screenRatio() * popupMargin));
    box->insertItem(0, tr("Common Tasks"), QStringList());
}

QStringList FeatureTreeWidget::useCaseNames(int index) const
{
    return m_ui->useCaseComboBox->itemData(index, Qt::UserRole).toStringList();
}

void FeatureTreeWidget::onUseCaseComboBoxCurrentIndexChanged(int index)
{
    if (index == m_useCaseIndex) {
        return;
    }
    const bool isChosen = index > 0;
    const QStringList names = isChosen ? useCaseNames(index) : QStringList();
    treeProxy()->markFavorites(names);
    tableProxy()->markFavorites(names);
    m_ui->useCaseEdit->setText(isChosen ? m_ui->useCaseComboBox->itemText(index) : QString());
    // In a user tab neither is seen.
    m_ui->useCaseEdit->setVisible(isChosen && !m_userTabMode);
    m_ui->useCaseComboBox->setVisible(!isChosen && !m_userTabMode);
    m_useCaseIndex = index;
    if (!names.isEmpty()) {
        expandTree();
    }
    refreshRows();
}

void FeatureTreeWidget::onUseCaseEditAction()
{
    const bool hadFocus = m_ui->useCaseEdit->hasFocus();
    m_ui->useCaseComboBox->setCurrentIndex(0);
    if (hadFocus) { // the box takes its place
        m_ui->useCaseComboBox->setFocus(Qt::OtherFocusReason);
    }
}

// Events are processed on the way, so the browser may be gone when they return.
void FeatureTreeWidget::onFilterTextChanged(const QString &newText)
{
    const QPointer<FeatureTreeWidget> self(this);
    ++m_searches;
    const auto ended = qScopeGuard([self] {
        if (self && --self->m_searches == 0) {
            Q_EMIT self->searchEnded();
        }
    });
    m_filterText = newText;
    if (m_firstFilterPending) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    if (self) {
        search(m_filterText);
    }
    // Meant: also where no cursor was set here.
    QGuiApplication::restoreOverrideCursor();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!self) {
        return;
    }
    m_firstFilterPending = false;
    if (!m_filterText.isEmpty()) {
        expandTree();
    }
    refreshRows();
}

bool FeatureTreeWidget::isSearching() const
{
    return m_searches > 0;
}

void FeatureTreeWidget::search(const QString &text)
{
    treeProxy()->markSearchMatches(text);
    tableProxy()->markSearchMatches(text);
    *m_ui->treeView->searchTextPointer() = text;
    m_ui->tableView->filterText() = text;
}

void FeatureTreeWidget::searchAgain()
{
    treeProxy()->markSearchMatches(QString());
    treeProxy()->markSearchMatches(m_filterText);
    if (!m_filterText.isEmpty()) {
        expandTree();
    }
    treeProxy()->refreshAll();
}

void FeatureTreeWidget::refreshRows()
{
    treeProxy()->refreshAll();
    tableProxy()->refreshAll();
}

// The steps overlap, which is meant: whoever hears of the new level finds the rows marked anew.
void FeatureTreeWidget::onVisibilityChanged(int value)
{
    if (value < GenApi::Beginner || value > GenApi::Invisible) {
        return;
    }
    const auto level = static_cast<GenApi::EVisibility>(value);
    const QPointer<FeatureTreeWidget> self(this); // a source may close while events are processed
    m_ui->treeView->setVisibility(level);
    m_ui->tableView->setVisibility(level);
    treeProxy()->setVisibility(value);
    tableProxy()->setVisibility(value);
    searchAgain();
    Q_EMIT visibilityChanged(level);
    if (self) {
        onFilterTextChanged(m_filterText);
    }
    if (self) {
        searchAgain();
    }
}

void FeatureTreeWidget::onCheckBoxUnavailableFavsTriggered(bool checked)
{
    treeProxy()->setShowUnavailable(checked);
    tableProxy()->setShowUnavailable(checked);
}

// The items are made anew, so nothing may hold one meanwhile.
void FeatureTreeWidget::onShowTreeViewClicked(bool checked)
{
    auto *model = qobject_cast<FeatureTreeModel *>(treeProxy()->sourceModel());
    const QStringList path = categoryPath(m_category);
    m_category.clear();
    setTableItems({});
    model->setShowTreeView(checked);
    m_ui->treeView->delegate()->setShowTreeView(checked);
    m_ui->treeView->repaint();
    const QPointer<FeatureTreeWidget> self(this); // a source may close while events are processed
    onFilterTextChanged(m_filterText);
    if (!self) {
        return;
    }
    m_useCaseIndex = -1;
    onUseCaseComboBoxCurrentIndexChanged(m_ui->useCaseComboBox->currentIndex());
    m_ui->treeView->setCurrentIndex(indexAlong(path, *treeProxy()));
}
