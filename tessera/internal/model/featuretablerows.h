// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QPointer>

class FeatureTreeItem;

/// The items behind the rows of the feature table, in their order. Owns none of them; a row whose
/// item is deleted by its owner stays as a row without an item.
class FeatureTableRows final
{
public:
    int size() const;
    /// Null outside the list and for a row without an item.
    FeatureTreeItem *at(int row) const;
    /// -1 for none. Does not search.
    int rowOf(const FeatureTreeItem *item) const;

    void assign(const QList<FeatureTreeItem *> &items);
    QPointer<FeatureTreeItem> takeFirst();
    void move(int from, int to);

private:
    QList<QPointer<FeatureTreeItem>> m_items;
    mutable QHash<const FeatureTreeItem *, int> m_rows; // made when asked for
};
