// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "autoadjustment.h"

#include "host/simulation/device/devicestate.h"

#include <cmath>

namespace Simulation {

namespace {

/// Two thirds of the way are done in this time.
constexpr double paceMs = 250.0;
constexpr double nearness = 0.01;

} // namespace

AutoAdjustment::AutoAdjustment(int id)
    : m_id(id)
{
}

int AutoAdjustment::id() const
{
    return m_id;
}

double AutoAdjustment::moved(double present, double goal, double share)
{
    const double next = present + (goal - present) * share;
    return std::abs(next - goal) <= nearness * std::abs(goal) ? goal : next;
}

void AutoAdjustment::advance(DeviceState &state, int elapsedMs)
{
    const FeatureDescription &feature = state.feature(m_id);
    const qint64 off = feature.entryIndex(QStringLiteral("Off"));
    const qint64 once = feature.entryIndex(QStringLiteral("Once"));
    const qint64 mode = integerOf(state.value(m_id));
    if (mode == off)
        return;
    const bool isThere = approach(state, 1.0 - std::exp(-elapsedMs / paceMs));
    if (isThere && mode == once)
        state.change(m_id, off);
}

} // namespace Simulation
