// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSharedPointer>
#include <QStringList>
#include <QVector>

class FeatureTreeINodeItem;
class IFeatureTreeModelExtension;

namespace ParameterCollection {
class IParameter;
class IParameterCollection;
} // namespace ParameterCollection

/// Logs a fault of the tree, which happened in source line `line`.
void logTreeFault(int line, const QString &text);

/// The category at the top of the tree that `collection` has attached under `roleName`. Null, with
/// a log entry, where it cannot be had.
QSharedPointer<ParameterCollection::IParameter> rootParameter(
    const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
    const QString &roleName);

/// Makes the items for the children of one category. What a collection refuses to tell is logged
/// and left out. Used for one category and thrown away.
class FeatureTreeLoader
{
public:
    /// With `showTreeView` all categories get an item; without it those of the third level and
    /// below give their features to the category of the second level instead.
    FeatureTreeLoader(IFeatureTreeModelExtension *model, bool showTreeView);

    /// The new items, without a parent, in the order of their rows. The caller owns them.
    QVector<FeatureTreeINodeItem *> itemsFor(
        FeatureTreeINodeItem *parent,
        const QSharedPointer<ParameterCollection::IParameter> &category);

private:
    void load(FeatureTreeINodeItem *parent, const QString &categoryName);
    FeatureTreeINodeItem *loadChild(FeatureTreeINodeItem *parent, const QString &name);
    bool isAbove(FeatureTreeINodeItem *parent,
                 const QSharedPointer<ParameterCollection::IParameter> &category) const;

    IFeatureTreeModelExtension *m_model = nullptr; // borrowed
    bool m_showTreeView = false;
    QStringList m_loading; // categories whose children are being read, outermost first
    QVector<FeatureTreeINodeItem *> m_items;
};
