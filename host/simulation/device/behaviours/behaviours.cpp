// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "behaviours.h"

#include "autolevel.h"
#include "autowhitebalance.h"
#include "counter.h"
#include "drift.h"

#include "host/simulation/description/devicedescription.h"

namespace Simulation {

namespace {

constexpr double nanosecondsPerSecond = 1.0e9;

std::unique_ptr<Behaviour> makeBehaviour(const DeviceDescription &description, int id)
{
    const Activity &activity = description.feature(id).rules->behaviour;
    const QJsonObject &parameters = activity.parameters;
    if (activity.kind == QLatin1String("drift"))
        return std::make_unique<Drift>(id, parameters);
    if (activity.kind == QLatin1String("counter"))
        return std::make_unique<Counter>(
            id, parameters.value(QLatin1String("perSecond")).toDouble(1.0));
    if (activity.kind == QLatin1String("clock"))
        return std::make_unique<Counter>(id, nanosecondsPerSecond);
    if (activity.kind == QLatin1String("autoWhiteBalance"))
        return std::make_unique<AutoWhiteBalance>(description, id, parameters);
    // Automatic exposure and automatic gain differ in what they move only.
    return std::make_unique<AutoLevel>(description, id, parameters);
}

} // namespace

std::vector<std::unique_ptr<Behaviour>> makeBehaviours(const DeviceDescription &description)
{
    std::vector<std::unique_ptr<Behaviour>> behaviours;
    behaviours.reserve(static_cast<std::size_t>(description.size()));
    for (int id = 0; id < description.size(); ++id) {
        const auto &rules = description.feature(id).rules;
        if (rules && !rules->behaviour.kind.isEmpty())
            behaviours.push_back(makeBehaviour(description, id));
    }
    return behaviours;
}

} // namespace Simulation
