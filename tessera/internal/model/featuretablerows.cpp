// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretablerows.h"

#include "internal/legacy/tree/featuretreeitem.h"

#include <algorithm>
#include <iterator>

int FeatureTableRows::size() const
{
    return m_items.size();
}

FeatureTreeItem *FeatureTableRows::at(int row) const
{
    return m_items.value(row);
}

int FeatureTableRows::rowOf(const FeatureTreeItem *item) const
{
    if (m_rows.isEmpty()) {
        m_rows.reserve(m_items.size());
        // Backwards, so that the first of two rows with the same item is found.
        for (int row = m_items.size() - 1; row >= 0; --row) {
            m_rows.insert(m_items.at(row), row);
        }
    }
    const int row = item ? m_rows.value(item, -1) : -1;
    // Another item may stand at the address of one that is gone.
    return at(row) == item ? row : -1;
}

void FeatureTableRows::assign(const QList<FeatureTreeItem *> &items)
{
    m_rows.clear();
    m_items.clear();
    m_items.reserve(items.size());
    std::copy(items.cbegin(), items.cend(), std::back_inserter(m_items));
}

QPointer<FeatureTreeItem> FeatureTableRows::takeFirst()
{
    m_rows.clear();
    return m_items.takeFirst();
}

void FeatureTableRows::move(int from, int to)
{
    m_rows.clear();
    m_items.move(from, to);
}
