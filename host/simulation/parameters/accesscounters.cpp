// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "accesscounters.h"

namespace Simulation {

void AccessCounters::count(const QString &fullName, Counter counter)
{
    ++(m_counts[fullName].*counter);
    ++(m_total.*counter);
}

void AccessCounters::reset()
{
    m_counts.clear();
    m_total = {};
}

AccessCounts AccessCounters::of(const QString &fullName) const
{
    return m_counts.value(fullName);
}

AccessCounts AccessCounters::total() const
{
    return m_total;
}

} // namespace Simulation
