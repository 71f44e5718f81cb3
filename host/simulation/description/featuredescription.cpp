// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuredescription.h"

#include <algorithm>

namespace Simulation {

int FeatureDescription::entryIndex(const QString &entryName) const
{
    const auto entry = std::find_if(
        entries.cbegin(), entries.cend(),
        [&entryName](const EntryDescription &candidate) { return candidate.name == entryName; });
    return entry == entries.cend() ? -1 : static_cast<int>(entry - entries.cbegin());
}

FeatureRules &FeatureDescription::ensureRules()
{
    if (!rules)
        rules = QSharedPointer<FeatureRules>::create();
    return *rules;
}

bool FeatureDescription::isPolled() const
{
    return rules && rules->isPolled;
}

} // namespace Simulation
