// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "autolevel.h"

#include "host/simulation/device/devicestate.h"

#include <QJsonObject>

namespace Simulation {

namespace {

/// Where the scene gives full brightness, as a share of the way from the lower to the upper bound.
constexpr double fullBrightness = 0.4;
constexpr double usualBrightness = 0.5;

} // namespace

AutoLevel::AutoLevel(const DeviceDescription &description, int id, const QJsonObject &parameters)
    : AutoAdjustment(id)
    , m_moved(description.findFrom(id, parameters.value(QLatin1String("moves")).toString()))
    , m_lower(description.findFrom(id, parameters.value(QLatin1String("lower")).toString()))
    , m_upper(description.findFrom(id, parameters.value(QLatin1String("upper")).toString()))
    , m_target(description.findFrom(id, parameters.value(QLatin1String("target")).toString()))
{
}

bool AutoLevel::approach(DeviceState &state, double share)
{
    if (m_moved < 0)
        return true;
    const Limits limits = state.limits(m_moved);
    const double lower = numberOf(m_lower < 0 ? limits.minimum : state.value(m_lower));
    const double upper = numberOf(m_upper < 0 ? limits.maximum : state.value(m_upper));
    const double brightness = m_target < 0 ? usualBrightness : numberOf(state.value(m_target));
    const double goal = lower + (upper - lower) * brightness * fullBrightness;
    const double present = numberOf(state.value(m_moved));
    const double next = moved(present, goal, share);
    state.change(m_moved, state.pulledIn(m_moved, state.numberAs(m_moved, next)));
    return next == goal;
}

} // namespace Simulation
