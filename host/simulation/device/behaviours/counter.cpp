// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "counter.h"

#include "host/simulation/device/devicestate.h"

#include <cmath>

namespace Simulation {

Counter::Counter(int id, double perSecond)
    : m_id(id)
    , m_perSecond(perSecond)
{
}

void Counter::advance(DeviceState &state, int elapsedMs)
{
    if (!state.holdAll(state.feature(m_id).rules->activeWhile))
        return;
    m_rest += m_perSecond * elapsedMs / 1000.0;
    const double counts = std::floor(m_rest);
    m_rest -= counts;
    if (counts < 1.0)
        return;
    const Limits limits = state.limits(m_id);
    const double present = numberOf(state.value(m_id));
    const bool isFull = present + counts > numberOf(limits.maximum);
    if (isFull)
        state.change(m_id, limits.minimum);
    else if (state.feature(m_id).type == ParameterCollection::Float)
        state.change(m_id, present + counts);
    else
        state.change(m_id, integerOf(state.value(m_id)) + static_cast<qint64>(counts));
}

} // namespace Simulation
