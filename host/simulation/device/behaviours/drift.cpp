// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "drift.h"

#include "host/simulation/device/devicestate.h"

#include <QtMath>

#include <cmath>

namespace Simulation {

Drift::Drift(int id, const QJsonObject &parameters)
    : m_id(id)
    , m_middle(parameters.value(QLatin1String("around")).toDouble())
    , m_amplitude(parameters.value(QLatin1String("amplitude")).toDouble(1.0))
    , m_periodMs(qMax(1.0, parameters.value(QLatin1String("periodMs")).toDouble(10000.0)))
{
}

void Drift::advance(DeviceState &state, int elapsedMs)
{
    m_timeMs += elapsedMs;
    // A sine, so that tests and pictures see the same course each time.
    const double value = m_middle + m_amplitude * std::sin(2.0 * M_PI * m_timeMs / m_periodMs);
    state.change(m_id, state.pulledIn(m_id, state.numberAs(m_id, value)));
}

} // namespace Simulation
