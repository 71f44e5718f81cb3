// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "browserwidgets.h"

#include "searchedit.h"

#include "internal/legacy/tree/featuretreeview.h"
#include "internal/view/featuretableview.h"
#include "internal/view/lightframe.h"
#include "internal/view/usecaseedit.h"
#include "plugin/constants/objectnames.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace ObjectNames = Plugin::Tessera::ObjectNames;
using Plugin::Tessera::Internal::View::CFeatureTableView;
using Plugin::Tessera::Internal::View::CUseCaseEdit;

namespace {

template<typename Widget> Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

BrowserWidgets::BrowserWidgets(QWidget *browser)
{
    if (browser->objectName().isEmpty()) {
        browser->setObjectName(QLatin1String(ObjectNames::Browser));
    }
    browser->resize(480, 300);
    browser->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    browser->setMinimumSize(200, 300);
    browser->setWindowTitle(
        QCoreApplication::translate("FeatureTreeWidgetClass", "FeatureTreeWidget"));
    auto *mainLayout = named(new QVBoxLayout(browser), "mainLayout");
    mainLayout->setSpacing(6);
    mainLayout->setContentsMargins(2, 2, 2, 2);

    // Style sheet and palette come before any view or editor: later they would cost far more.
    frame = named(new QFrame(browser), "frame");
    frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    frame->setAutoFillBackground(false);
    frame->setStyleSheet(QStringLiteral("QFrame {\n    background-color: \"white\";\n}"));
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setFrameShadow(QFrame::Plain);
    auto *frameLayout = named(new QVBoxLayout(frame), "verticalLayout");
    frameLayout->setSpacing(40);
    frameLayout->setContentsMargins(11, 11, 11, 11);
    buildTopRow(frameLayout);
    buildViews(frameLayout);
    new LightFrame(frame);
    mainLayout->addWidget(frame);
    buildBottomRow(mainLayout);
    describe();
}

void BrowserWidgets::buildTopRow(QVBoxLayout *layout)
{
    auto *row = named(new QHBoxLayout, "horizontalLayout_2");
    row->setSpacing(10);
    row->setContentsMargins(-1, 0, -1, 0);

    useCaseEdit = named(new CUseCaseEdit(frame), "useCaseEdit");
    useCaseEdit->setMinimumSize(250, 20);
    useCaseEdit->setAutoFillBackground(false);
    useCaseEdit->hide();
    row->addWidget(useCaseEdit);

    useCaseComboBox = named(new QComboBox(frame), "useCaseComboBox");
    useCaseComboBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    useCaseComboBox->setMinimumSize(250, 20);
    row->addWidget(useCaseComboBox);

    filterEdit = named(new SearchEdit(frame), "filterEdit");
    filterEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    filterEdit->setMinimumSize(50, 20);
    filterEdit->setAutoFillBackground(false);
    row->addWidget(filterEdit);
    layout->addLayout(row);
}

void BrowserWidgets::buildViews(QVBoxLayout *layout)
{
    splitter = named(new QSplitter(Qt::Horizontal, frame), "splitter");
    splitter->setHandleWidth(0);
    splitter->setChildrenCollapsible(false);

    treeView = named(new FeatureTreeView(splitter), ObjectNames::TreeView);
    treeView->setContextMenuPolicy(Qt::CustomContextMenu);
    treeView->setFrameShape(QFrame::NoFrame);
    treeView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    treeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    treeView->setProperty("showDropIndicator", false);
    treeView->setUniformRowHeights(true);
    treeView->header()->setStretchLastSection(false);

    line = named(new QFrame(splitter), "line");
    line->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    line->setMinimumSize(1, 0);
    line->setMaximumSize(1, QWIDGETSIZE_MAX);
    line->setStyleSheet(QStringLiteral("background-color: palette(midlight);"));
    line->setLineWidth(0);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);

    tableView = named(new CFeatureTableView(splitter), ObjectNames::TableView);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setHorizontalStretch(1);
    tableView->setSizePolicy(policy);
    tableView->setContextMenuPolicy(Qt::CustomContextMenu);
    tableView->setFrameShape(QFrame::NoFrame);
    tableView->setEditTriggers(QAbstractItemView::AllEditTriggers);
    tableView->setDragEnabled(true);
    tableView->setDragDropMode(QAbstractItemView::DragOnly);
    tableView->setSelectionMode(QAbstractItemView::SingleSelection);
    tableView->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    tableView->setShowGrid(false);
    tableView->horizontalHeader()->setStretchLastSection(true);
    tableView->verticalHeader()->hide();
    layout->addWidget(splitter);
}

void BrowserWidgets::buildBottomRow(QVBoxLayout *layout)
{
    QWidget *browser = frame->parentWidget();
    auto *row = named(new QHBoxLayout, "bottomLayout");
    row->setSpacing(12);
    row->setContentsMargins(0, 0, 0, 0);

    addNewFavoriteButton = named(new QPushButton(browser), "addNewFavoriteButton");
    addNewFavoriteButton->setText(
        QCoreApplication::translate("FeatureTreeWidgetClass", "Edit Feature Tabs"));
    addNewFavoriteButton->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    addNewFavoriteButton->setMinimumSize(0, 32);
    addNewFavoriteButton->setMaximumSize(QWIDGETSIZE_MAX, 32);
    row->addWidget(addNewFavoriteButton);
    row->addItem(new QSpacerItem(20, 32, QSizePolicy::Minimum, QSizePolicy::Fixed));
    row->addItem(new QSpacerItem(91, 22, QSizePolicy::Expanding, QSizePolicy::Minimum));

    checkBoxShowTreeView = named(new QCheckBox(browser), "checkBoxShowTreeView");
    checkBoxShowTreeView->setText(
        QCoreApplication::translate("FeatureTreeWidgetClass", "Show Tree View"));
    row->addWidget(checkBoxShowTreeView);

    checkBoxPolling = named(new QCheckBox(browser), "checkBoxPolling");
    checkBoxPolling->setText(QCoreApplication::translate("FeatureTreeWidgetClass", "P&olling"));
    checkBoxPolling->setMinimumSize(0, 32);
    row->addWidget(checkBoxPolling);

    checkBoxUnavailableFavs = named(new QCheckBox(browser), "checkBoxUnavailableFavs");
    checkBoxUnavailableFavs->setText(
        QCoreApplication::translate("FeatureTreeWidgetClass", "Show Unavailable Features"));
    checkBoxUnavailableFavs->setMinimumSize(0, 32);
    row->addWidget(checkBoxUnavailableFavs);

    resetButton = named(new QPushButton(browser), "resetButton");
    resetButton->setFixedSize(32, 32);
    resetButton->setIcon(QIcon(QStringLiteral(":/vantrelviewercomponents/Resources/sync_16.png")));
    resetButton->setToolTip(QCoreApplication::translate("FeatureTreeWidgetClass", "Refresh"));
    // The second blank is meant: translations are found by this text.
    resetButton->setStatusTip(
        QCoreApplication::translate("FeatureTreeWidgetClass", "Refreshes the  feature tree"));
    resetButton->setShortcut(
        QKeySequence(QCoreApplication::translate("FeatureTreeWidgetClass", "F5")));
    row->addWidget(resetButton);
    layout->addLayout(row);
}

void BrowserWidgets::describe() const
{
    const auto name = [](QWidget *widget, const QString &text) { widget->setAccessibleName(text); };
    name(filterEdit, QCoreApplication::translate("FeatureTreeWidgetClass", "Search"));
    name(useCaseComboBox, QCoreApplication::translate("FeatureTreeWidgetClass", "Use case"));
    name(useCaseComboBox->view(), useCaseComboBox->accessibleName());
    // On some systems a box is read out by its label only; this one is never seen.
    auto *label = new QLabel(useCaseComboBox->accessibleName(), frame);
    label->setBuddy(useCaseComboBox);
    label->hide();
    name(useCaseEdit, QCoreApplication::translate("FeatureTreeWidgetClass", "Use case"));
    name(treeView, QCoreApplication::translate("FeatureTreeWidgetClass", "Categories"));
    name(tableView, QCoreApplication::translate("FeatureTreeWidgetClass", "Features"));
    name(resetButton, resetButton->toolTip());
    // Tab leaves a view; the arrow keys walk in it.
    treeView->setTabKeyNavigation(false);
    tableView->setTabKeyNavigation(false);
    const QVector<QWidget *> order {filterEdit,
                                    useCaseComboBox,
                                    useCaseEdit,
                                    treeView,
                                    tableView,
                                    addNewFavoriteButton,
                                    checkBoxShowTreeView,
                                    checkBoxPolling,
                                    checkBoxUnavailableFavs,
                                    resetButton};
    for (int place = 1; place < order.size(); ++place) {
        QWidget::setTabOrder(order.at(place - 1), order.at(place));
    }
}
