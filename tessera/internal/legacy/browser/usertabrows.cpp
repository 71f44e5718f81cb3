// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "usertabrows.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemodelextension.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/services/exceptionbarrier.h"

#include <QMultiHash>

#include <algorithm>
#include <utility>

using ParameterCollection::IParameter;
using ParameterCollection::IParameterCollection;

UserTabRows::UserTabRows(QSharedPointer<IParameterCollection> collection,
                         const QVector<CollectionRecord> &records, IFeatureTreeModelExtension &tree,
                         IFeatureTreeModelExtension &table)
    : m_collection(std::move(collection))
    , m_records(records)
    , m_tree(tree)
    , m_table(table)
{
}

QList<FeatureTreeItem *> UserTabRows::make(const QStringList &names) const
{
    QStringList missing = names;
    QHash<QString, FeatureTreeItem *> treeItems;
    const QList<FeatureTreeItem *> found = m_tree.itemsForNames(missing);
    for (FeatureTreeItem *item : found) {
        if (qobject_cast<FeatureTreeINodeItem *>(item) && !treeItems.contains(item->fullName())) {
            treeItems.insert(item->fullName(), item);
        }
    }
    QList<FeatureTreeItem *> rows;
    rows.reserve(names.size());
    for (const QString &name : names) {
        FeatureTreeItem *item = treeItems.take(name);
        if (!item && m_collection) {
            item = makeItem(name);
        }
        if (item) {
            rows.append(item);
        }
    }
    return rows;
}

FeatureTreeItem *UserTabRows::makeItem(const QString &name) const
{
    QSharedPointer<IParameter> parameter;
    Plugin::Tessera::runGuarded([&] { parameter = m_collection->parameter(name); });
    return new FeatureTreeINodeItem(m_collection, parameter, &m_table, name, nullptr, isUtf8(name),
                                    0);
}

bool UserTabRows::isUtf8(const QString &name) const
{
    const QString tree = name.section(QLatin1Char('/'), 0, 0);
    const auto record =
        std::find_if(m_records.cbegin(), m_records.cend(),
                     [&tree](const CollectionRecord &each) { return each.roleName == tree; });
    return record == m_records.cend() ? m_tree.isUtf8() : record->isUtf8;
}
