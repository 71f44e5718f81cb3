// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

class FeatureTreeItem;

/// Full names that are compared without regard to case, each looked up once for a whole tree.
class FavoriteNames
{
public:
    explicit FavoriteNames(const QStringList &names = {});

    bool contains(const QString &fullName) const;

private:
    QSet<QString> m_folded;
};

/// Gives each item from `item` down the use-case mark or takes it: features that are among `names`
/// and the categories above them. True when `item` got it.
bool markFavorites(FeatureTreeItem &item, const FavoriteNames &names);

/// The same with the search mark: items whose text or relative path contains `trimmedText`, case
/// aside, and the categories above them. What is invisible or not implemented is never marked.
bool markSearchMatches(FeatureTreeItem &item, const QString &trimmedText);
