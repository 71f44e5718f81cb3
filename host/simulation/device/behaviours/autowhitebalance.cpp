// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "autowhitebalance.h"

#include "host/simulation/device/devicestate.h"

#include <QJsonObject>

namespace Simulation {

namespace {

/// The ratios of red, green and blue under the lamp of this scene.
double ratioOf(qint64 colour)
{
    static const QVector<double> ratios {1.45, 1.0, 1.82};
    return ratios.value(static_cast<int>(colour), 1.0);
}

} // namespace

AutoWhiteBalance::AutoWhiteBalance(const DeviceDescription &description, int id,
                                   const QJsonObject &parameters)
    : AutoAdjustment(id)
    , m_moved(description.findFrom(id, parameters.value(QLatin1String("moves")).toString()))
{
}

bool AutoWhiteBalance::approach(DeviceState &state, double share)
{
    const int selector = m_moved < 0 ? -1 : state.feature(m_moved).rules->selectedBy.id;
    if (selector < 0)
        return true;
    bool isThere = true;
    const QVector<int> colours = state.entries(selector);
    for (int colour : colours) {
        const double goal = ratioOf(colour);
        const double next = moved(numberOf(state.selectedValue(m_moved, colour)), goal, share);
        state.storeSelected(m_moved, colour, next);
        isThere = isThere && next == goal;
    }
    return isThere;
}

} // namespace Simulation
