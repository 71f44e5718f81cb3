// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreemarking.h"

#include "featuretreeitem.h"

#include "plugin/contract/genapi/visibility.h"

FavoriteNames::FavoriteNames(const QStringList &names)
{
    m_folded.reserve(names.size());
    for (const QString &name : names) {
        m_folded.insert(name.toCaseFolded());
    }
}

bool FavoriteNames::contains(const QString &fullName) const
{
    return !m_folded.isEmpty() && m_folded.contains(fullName.toCaseFolded());
}

SearchText::SearchText(const QString &text)
    : m_matcher(text.trimmed(), Qt::CaseInsensitive)
{
}

bool SearchText::isIn(QStringView candidate) const
{
    return !m_matcher.pattern().isEmpty() && m_matcher.indexIn(candidate) >= 0;
}

bool markFavorites(FeatureTreeItem &item, const FavoriteNames &names)
{
    bool found = false;
    const int count = item.childCount();
    for (int row = 0; row < count; ++row) {
        found = markFavorites(*item.child(row), names) || found;
    }
    found = found || names.contains(item.fullName());
    item.setFavoriteMatch(found);
    return found;
}

bool markSearchMatches(FeatureTreeItem &item, const SearchText &searched)
{
    bool found = false;
    const int count = item.childCount();
    for (int row = 0; row < count; ++row) {
        found = markSearchMatches(*item.child(row), searched) || found;
    }
    found = (found || searched.isIn(item.text()) || searched.isIn(item.relativePath()))
        && item.visibility() != GenApi::Invisible && item.accessMode() != 0;
    item.setSearchMatch(found);
    return found;
}
