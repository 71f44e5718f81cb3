// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretablerows.h"

#include "internal/legacy/tree/featuretreemodelextension.h"

#include <QAbstractTableModel>

namespace Plugin::Tessera::Internal::Model {

/// Features as a flat list of two columns, "Feature" and "Value". Shows items that a tree owns; of
/// those it is given it deletes only the ones that stand in no tree, when it is done with them.
/// Updates come from the items; it polls nothing itself.
class CFeatureTableModel final : public QAbstractTableModel, public IFeatureTreeModelExtension
{
    Q_OBJECT

public:
    explicit CFeatureTableModel(QObject *parent = nullptr);
    ~CFeatureTableModel() override;

    /// Shows `items` in place of what was there and has their values read. An item without a parent
    /// and of depth 0 is taken over. `isUtf8` tells how texts are written.
    void setItems(QList<FeatureTreeItem *> items, bool isUtf8);
    /// Moves the row of `source` to that of `target`, which is above it when `up`, else below.
    void moveItem(QModelIndex source, QModelIndex target, bool up);

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Writes nothing for a value that is shown already. A write that fails raises a message box.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// The full path of the first index's parameter; see `MimeTypes::ParameterPath`.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    /// Moves the row that the full path in `data` names to the row of `parent`.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;
    Qt::DropActions supportedDropActions() const override;

    QModelIndex createItemIndex(FeatureTreeItem *item, int column) override;
    void setPolling(bool polling) override;
    bool isPolling() const override;
    void setActive(bool active) override;
    QModelIndex indexOfItem(FeatureTreeItem *item, FeatureTreeItem *searchRoot,
                            int column) override;
    QModelIndex indexOfName(const QString &fullName, FeatureTreeItem *searchRoot,
                            int column) override;
    QModelIndex indexOfRoleValue(int role, const QVariant &value, FeatureTreeItem *searchRoot,
                                 int column) override;
    void setFeatureNameFilter(const QStringList &names) override;
    /// All rows, whatever the names; none is taken out of `names`.
    QList<FeatureTreeItem *> itemsForNames(QStringList &names) override;
    void markFavorites(const QStringList &names) override;
    void markSearchMatches(const QString &text) override;
    void setShowUnavailable(bool show) override;
    void pollNodes(const QStringList &names) override;
    void loadChildren(FeatureTreeINodeItem *parent,
                      QSharedPointer<ParameterCollection::IParameter> parameter) override;
    void setVisibility(int visibility) override;
    int visibility() const override;
    void setPollByInvalidation(bool invalidate) override;
    void setAcceptUpdates(bool accept) override;
    bool acceptUpdates() const override;
    FeatureTreeItem *itemFromIndex(const QModelIndex &index) const override;
    void setSearchText(const QString *searchText) override;
    void refreshAll() override;
    bool isUtf8() const override;
    QString emptyText(QSharedPointer<ParameterCollection::IParameter> parameter) const override;
    bool markFavoritesBelow(FeatureTreeItem *item, const QStringList &names) override;
    bool markSearchBelow(FeatureTreeItem *item, const QString &text) override;

Q_SIGNALS:
    /// The user has moved a row.
    void orderOfItemsChanged(int from, int to);

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): for moc
    /// Takes all rows out, with the signals that belong to it.
    void clear() override;
    void onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem) override;
    void onTimerPoll() override;

private:
    void release(FeatureTreeItem *item) const;
    int rowOfName(const QString &fullName) const;

    FeatureTableRows m_rows;
    int m_visibility = 2;
    mutable bool m_getFailureLogged = false;
    bool m_active = true;
    bool m_acceptUpdates = true;
    bool m_isUtf8 = false;
};

} // namespace Plugin::Tessera::Internal::Model
