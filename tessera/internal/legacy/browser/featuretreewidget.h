// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "collectionrecord.h"

#include "plugin/contract/appcore/baseinfo.h"
#include "plugin/contract/genapi/visibility.h"
#include "plugin/contract/parametercollection/parameter.h"

#include <QMenu>
#include <QModelIndex>
#include <QSharedPointer>
#include <QVector>
#include <QWidget>

class FeatureTreeItem;
class FeatureTreeModel;
class QTreeView;
class ShownRows;

/// The browser: shows the features of one parameter source in one pane, and lets the user edit
/// them. The pane makes one for each source and hears its signals.
class FeatureTreeWidget final : public QWidget
{
    Q_OBJECT

public:
    /// `sourceInfo` is the record of the source that is shown. `filterSubPath` is empty.
    FeatureTreeWidget(QString filterSubPath, Core::AppCoreComponents::BaseInfoPtr sourceInfo,
                      QWidget *parent);
    ~FeatureTreeWidget() override;

    /// Reads what has changed on the device.
    void refresh();
    /// The item of the current row; null for none.
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

public Q_SLOTS:
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
    void onCurrentChanged(const QModelIndex &current);

private Q_SLOTS:
    void onVisibilityChanged(int value);
    void contextualMenu(QPoint point);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void attachView();

    QString m_filterSubPath;
    Core::AppCoreComponents::BaseInfoPtr m_sourceInfo;
    QVector<CollectionRecord> m_records;
    FeatureTreeModel *m_model = nullptr; // by parent
    QTreeView *m_treeView = nullptr; // by parent
    ShownRows *m_shownRows = nullptr; // by parent
};
