// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featurelist.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <iterator>

using ParameterCollection::ParameterName;

namespace Plugin::Tessera {

namespace {

FeatureList fromNames(const QStringList &names)
{
    FeatureList list;
    std::transform(names.cbegin(), names.cend(), std::back_inserter(list),
                   [](const QString &name) { return ParameterName(name); });
    return list;
}

QSet<ParameterName> asSet(const FeatureList &list)
{
    return {list.cbegin(), list.cend()};
}

} // namespace

QString featureListText(const FeatureList &list)
{
    QStringList names;
    std::transform(list.cbegin(), list.cend(), std::back_inserter(names),
                   [](const ParameterName &name) { return name.toString(); });
    return names.join(QLatin1Char(','));
}

FeatureList featureListFromText(const QString &text)
{
    return fromNames(text.split(QLatin1Char(','), Qt::SkipEmptyParts));
}

FeatureList mergedWithCatalogue(const FeatureList &list, const QVariantMap &catalogue)
{
    if (catalogue.isEmpty()) {
        return list;
    }
    const FeatureList offered = fromNames(catalogue.first().toStringList());
    const QSet<ParameterName> offeredNames = asSet(offered);
    FeatureList merged;
    std::copy_if(list.cbegin(), list.cend(), std::back_inserter(merged),
                 [&](const ParameterName &name) { return offeredNames.contains(name); });
    QSet<ParameterName> known = asSet(merged);
    std::copy_if(offered.cbegin(), offered.cend(), std::back_inserter(merged),
                 [&](const ParameterName &name) {
                     const bool isNew = !known.contains(name);
                     known.insert(name);
                     return isNew;
                 });
    return merged;
}

void moveFeature(FeatureList &list, int from, int to)
{
    const auto isInside = [&](int place) { return place >= 0 && place < list.size(); };
    if (isInside(from) && isInside(to)) {
        list.move(from, to);
    }
}

} // namespace Plugin::Tessera
