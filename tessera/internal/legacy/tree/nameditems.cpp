// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "nameditems.h"

#include "featuretreeitem.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace {

// How often each name occurs, so that a long list of names is not searched for each item.
class NameCounts
{
public:
    void add(const QString &name)
    {
        ++m_counts[name];
    }
    bool takeOne(const QString &name)
    {
        const auto count = m_counts.find(name); // clazy:exclude=detaching-member
        if (count == m_counts.end()) {
            return false;
        }
        *count -= 1;
        if (*count == 0) {
            m_counts.erase(count);
        }
        return true;
    }
    bool isEmpty() const
    {
        return m_counts.isEmpty();
    }

private:
    QHash<QString, int> m_counts;
};

void collect(FeatureTreeItem *item, NameCounts &wanted, QList<FeatureTreeItem *> &found)
{
    if (wanted.takeOne(item->fullName())) {
        found.append(item);
    }
    const int count = wanted.isEmpty() ? 0 : item->childCount();
    for (int row = 0; row < count && !wanted.isEmpty(); ++row) {
        collect(item->child(row), wanted, found);
    }
}

} // namespace

QList<FeatureTreeItem *> takeNamedItems(const FeatureTreeItem &root, QStringList &names)
{
    NameCounts wanted;
    for (const QString &name : qAsConst(names)) {
        wanted.add(name);
    }
    QList<FeatureTreeItem *> found;
    for (int row = 0; FeatureTreeItem *top = root.child(row); ++row) {
        collect(top, wanted, found);
    }
    NameCounts taken;
    for (const FeatureTreeItem *item : qAsConst(found)) {
        taken.add(item->fullName());
    }
    const auto wasFound = [&taken](const QString &name) { return taken.takeOne(name); };
    names.erase(std::remove_if(names.begin(), names.end(), wasFound), names.end());
    return found;
}
