// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "collectionrecord.h"

#include "plugin/contract/appcore/baseinfo.h"
#include "plugin/contract/genapi/visibility.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/parametername.h"

#include <QItemSelection>
#include <QMap>
#include <QMenu>
#include <QModelIndex>
#include <QPointer>
#include <QSharedPointer>
#include <QStringList>
#include <QVariantMap>
#include <QVector>
#include <QWidget>

#include <memory>

class FeatureTreeItem;
class FeatureTreeProxyModel;
class FeatureTreeView;
class QAction;
class SplitterColumns;
struct BrowserWidgets;

namespace Core::CameraPoolComponents {
class IDeviceBaseInfo;
}
namespace Plugin::ParameterCollectionPool {
class IParameterService;
}
namespace Plugin::Tessera::Internal::Model {
class CFeatureTableModel;
}
namespace Plugin::Tessera::Internal::View {
class CFeatureTableView;
}

/// The browser: shows the features of one parameter source in one pane, and lets the user edit
/// them. A tree of categories on the left, the features of the selected one in a table on the
/// right; in user-tab mode the table alone, with the features that the pane names.
class FeatureTreeWidget : public QWidget
{
    Q_OBJECT

public:
    /// `sourceInfo` is the record of the source that is shown. `filterSubPath` is empty.
    FeatureTreeWidget(QString filterSubPath, Core::AppCoreComponents::BaseInfoPtr sourceInfo,
                      QWidget *parent);
    ~FeatureTreeWidget() override;

    virtual const FeatureTreeView *treeView() const;
    virtual FeatureTreeView *treeView();
    virtual const Plugin::Tessera::Internal::View::CFeatureTableView *tableView() const;
    virtual Plugin::Tessera::Internal::View::CFeatureTableView *tableView();

    /// True for a table of the features that the pane names, false for tree and table.
    void setUserTabMode(bool userTabMode);
    /// Shows the button that opens the Edit Feature Tabs window.
    void setAddNewFavoriteButtonVisible(bool visible);
    /// Where the source's collection is found for features that the tree lacks.
    void setDeviceParameterService(
        QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> service);
    /// The features of a user tab, in their order; outside user-tab mode the only ones shown. Empty
    /// for all.
    void setFeatureNameList(const QList<ParameterCollection::ParameterName> &names);
    /// Fills the chooser of use cases: names with their lists of features. The choice stays at its
    /// place.
    void setUseCases(const QVariantMap &useCases);
    /// Width of the tree in pixels; negative ones are ignored.
    void setCategoryColumnWidth(int width);
    /// Width of the table's first column in pixels; negative ones are ignored.
    void setFirstSectionSize(int width);
    /// Reads what has changed on the device.
    void refresh();
    /// True while `onFilterTextChanged` runs: it processes events, and who is called by one of
    /// them must not delete the browser before `searchEnded`.
    bool isSearching() const;
    /// The item of the table's current row, else of the tree's; null for none.
    FeatureTreeItem *currentItem() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user asks for a menu at a place of the screen. The receiver adds entries and shows it.
    void contextMenuRequested(QPoint point, QSharedPointer<QMenu> ptrMenu);
    /// A visibility level was taken.
    void visibilityChanged(GenApi::EVisibility visibility);
    /// The current parameter; null for none.
    void onCurrentChanged( // clazy:exclude=overloaded-signal
        QSharedPointer<ParameterCollection::IParameter> parameter);
    /// A text for the status area.
    void onNewText(QString str);
    /// The user switched polling on or off.
    void pollingStateChanged(bool newState);
    /// Declared for the pane; never emitted.
    void filterMatchesChanged(int matches, int hiddenMatches);
    /// The table's first column was resized. `isConnectedToTreeView` is false in user-tab mode.
    void firstSectionSizeChanged(int width, bool isConnectedToTreeView);
    /// The user moved the border between tree and table.
    void categoryColumnWidthChanged(int width);
    /// A row of a user tab was moved.
    void orderOfTableItemsChanged(int from, int to);
    /// The outermost search has come to its end.
    void searchEnded();
    /// The user asks for the Edit Feature Tabs window.
    void addFavoriteButtonClicked();

public Q_SLOTS:
    /// Polls by refreshing what has changed instead of the collection's own polling.
    void setMonitorMode(bool bMonitorMode);
    /// Adds the tree that is attached under `roleName` as a top row with the text `rootName`.
    /// `isUtf8` tells how texts are written to it.
    void addParameterCollection(
        QSharedPointer<ParameterCollection::IParameterCollection> pParameterCollection,
        const QString &rootName, const QString &roleName, bool isUtf8);
    /// Puts all features with their values on the clipboard, as text.
    void copyToClipboard();
    /// Removes all rows.
    void clear();
    /// Opens all categories.
    void expandTree();
    /// Takes the state without announcing it; ignored in user-tab mode.
    void onPollingStateChanged(bool newState);
    void onCurrentChanged(const QModelIndex &current);
    /// Marks what the text is found in.
    void onFilterTextChanged(const QString &newText);
    /// True shows all categories as rows, false two levels of them.
    void onShowTreeViewClicked(bool checked);

private Q_SLOTS:
    void onVisibilityChanged(int value);
    void onUseCaseComboBoxCurrentIndexChanged(int index);
    void onUseCaseEditAction();
    void on_resetButton_clicked(); // clazy:exclude=connect-by-name
    void on_addNewFavoriteButton_clicked(); // clazy:exclude=connect-by-name
    void on_checkBoxPolling_clicked(); // clazy:exclude=connect-by-name
    void contextualMenu(QPoint point);
    void togglePolling_triggered();
    void tableViewSectionResized(int logicalIndex, int oldSize, int size);
    void splitterMoved(int pos, int index);
    void onCheckBoxUnavailableFavsTriggered(bool checked);
    void onSelectedChanged(const QItemSelection &selected, const QItemSelection &deselected);
    void onTableSelectionChanged(const QItemSelection &selected, const QItemSelection &deselected);
    void onFavoriteMoveUp_triggered();
    void onFavoriteMoveDown_triggered();

protected:
    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    using CollectionPtr = QSharedPointer<ParameterCollection::IParameterCollection>;

    void replaceHeaders();
    void connectWidgets();
    void createActions();
    QAction *createMoveAction(const QString &iconFile, const QString &text, const QString &keys);
    void connectTable();

    FeatureTreeProxyModel *treeProxy() const;
    FeatureTreeProxyModel *tableProxy() const;
    Plugin::Tessera::Internal::Model::CFeatureTableModel *tableModel() const;
    void setTableItems(const QList<FeatureTreeItem *> &items);

    bool applyFilterFile(const CollectionPtr &collection,
                         const QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo> &device,
                         const QString &roleName);
    QList<FeatureTreeItem *> userTabItems(const QStringList &names) const;
    QStringList useCaseNames(int index) const;
    void fillUseCases(const QVariantMap &useCases);
    void search(const QString &text);
    void searchAgain();
    void refreshRows();
    void rememberScrolling(const QItemSelection &deselected);
    void setMoveActions(const QModelIndex &index);
    void moveFavorite(int rows);

    std::unique_ptr<BrowserWidgets> m_ui; // the widgets are ours by parent
    QAction *m_actionTogglePolling = nullptr; // by parent
    QString m_filterSubPath;
    bool m_firstFilterPending = true; // the first search shows the wait cursor
    int m_searches = 0; // that run now, one within the other
    QString m_filterText;
    Core::AppCoreComponents::BaseInfoPtr m_sourceInfo;
    qint32 m_useCaseIndex = 0; // applied last; -1 has the next one applied in any case
    bool m_userTabMode = false;
    QAction *m_actionMoveFavouriteUp = nullptr; // by parent
    QAction *m_actionMoveFavouriteDown = nullptr; // by parent
    QList<ParameterCollection::ParameterName> m_featureNames;
    QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> m_parameterService;
    QVector<CollectionRecord> m_records;
    QPointer<FeatureTreeItem> m_category; // whose children the table lists
    QMap<QString, int> m_scrollMemory; // of the table, by name of category
    SplitterColumns *m_columns = nullptr; // by parent
};
