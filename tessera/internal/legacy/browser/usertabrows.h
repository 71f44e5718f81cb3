// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "collectionrecord.h"

#include <QList>
#include <QStringList>
#include <QVector>

class FeatureTreeItem;
class IFeatureTreeModelExtension;

/// Makes the rows of a user tab: one for each name and in their order, so that a row stands where
/// its name stands in the pane's list.
class UserTabRows final
{
public:
    /// `collection` is the source's; null for none. New items are shown by `table`.
    UserTabRows(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                const QVector<CollectionRecord> &records, IFeatureTreeModelExtension &tree,
                IFeatureTreeModelExtension &table);

    /// The tree's items where it has them, else new ones without a parent, which the caller takes
    /// over. Without a collection there are no new ones. A name that the source does not know gets
    /// an item without a parameter.
    QList<FeatureTreeItem *> make(const QStringList &names) const;

private:
    FeatureTreeItem *makeItem(const QString &name) const;
    bool isUtf8(const QString &name) const;

    QSharedPointer<ParameterCollection::IParameterCollection> m_collection;
    const QVector<CollectionRecord> &m_records;
    IFeatureTreeModelExtension &m_tree;
    IFeatureTreeModelExtension &m_table;
};
