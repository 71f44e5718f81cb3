// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

namespace Simulation {

/// How often a parameter, or all of them, were accessed.
struct AccessCounts
{
    int reads = 0; ///< from the device
    int writes = 0; ///< to the device, commands and refused ones included
    int refreshes = 0; ///< calls of `refresh`
    int publications = 0; ///< snapshots sent to receivers
    int subscriptions = 0; ///< connections made to the change signal
};

/// Counts what goes through a collection, for tests and for looking into traffic. Used on the GUI
/// thread.
class AccessCounters final
{
public:
    using Counter = int AccessCounts::*;

    void count(const QString &fullName, Counter counter);
    void reset();

    /// The counts of one parameter.
    AccessCounts of(const QString &fullName) const;
    /// The counts of all parameters together.
    AccessCounts total() const;

private:
    QHash<QString, AccessCounts> m_counts;
    AccessCounts m_total;
};

} // namespace Simulation
