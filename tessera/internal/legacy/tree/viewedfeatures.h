// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/genapi/visibility.h"

#include <QPointer>

class FeatureTreeINodeItem;
class FeatureTreeItem;
class FeatureTreeProxyModel;
class IFeatureTreeModelExtension;
class QAbstractItemModel;
class QAbstractItemView;
class QModelIndex;
class QString;

/// What tree and table ask of the model that they show, and the level at which they show it.
class ViewedFeatures final
{
public:
    /// `lastModel` is the model that was last given a level, in whichever view of a kind. It is
    /// only compared and may be gone; the place outlives the views.
    explicit ViewedFeatures(const QAbstractItemModel *&lastModel);

    /// Takes note of the model that a view now has. May be null.
    void setModel(QAbstractItemModel *model);

    /// The model as one of features; null where it is none, or gone.
    IFeatureTreeModelExtension *extension() const;
    FeatureTreeItem *item(const QModelIndex &index) const;
    /// Null for a row that is not of a parameter.
    FeatureTreeINodeItem *feature(const QModelIndex &index) const;

    /// True while the model tells of a snapshot that says the same as the one before.
    bool isRepeating(const QModelIndex &index) const;

    int level() const;
    /// Has the model read what changed, unless neither the level nor the model is another than the
    /// last time, in whichever view of the kind.
    void setLevel(GenApi::EVisibility level);

    /// True for a cell whose editor stays open while it can be seen, whether it can be used or not.
    bool wantsEditor(const QModelIndex &value) const;
    /// True for a cell whose editor can be opened now.
    bool mayOpenEditor(const QModelIndex &value) const;

private:
    const QAbstractItemModel *&m_lastModel;
    QPointer<QAbstractItemModel> m_model; // borrowed
    IFeatureTreeModelExtension *m_extension = nullptr; // borrowed, lives as long as m_model
    int m_level = GenApi::Guru;
};

/// Gives a view of features its font and colours.
void dressFeatureView(QAbstractItemView &view);

/// A proxy over `source`, whose parent it becomes, that marks what `searchText` is in. `searchText`
/// has to outlive both.
FeatureTreeProxyModel *makeFeatureProxy(QAbstractItemModel *source, const QString *searchText,
                                        QObject *parent);
