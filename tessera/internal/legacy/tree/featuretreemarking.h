// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringMatcher>
#include <QStringView>

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

/// What a user searches for, without the blanks around it; case does not matter.
class SearchText
{
public:
    explicit SearchText(const QString &text);

    /// True when the text is somewhere in `candidate`. Nothing has the empty text in it.
    bool isIn(QStringView candidate) const;

private:
    QStringMatcher m_matcher;
};

/// Gives each item from `item` down the use-case mark or takes it: features that are among `names`
/// and the categories above them. True when `item` got it.
bool markFavorites(FeatureTreeItem &item, const FavoriteNames &names);

/// The same with the search mark: items whose text or relative path has `searched` in it, and
/// the categories above them. What is invisible or not implemented is never marked.
bool markSearchMatches(FeatureTreeItem &item, const SearchText &searched);
