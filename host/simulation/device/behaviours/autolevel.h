// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/device/behaviours/autoadjustment.h"

class QJsonObject;

namespace Simulation {

class DeviceDescription;

/// Automatic exposure or gain: moves one number between its lower and upper bound to where the
/// image gets the brightness asked for. Parameters name features: "moves", and if there are any
/// "lower", "upper" and "target", a brightness between 0 and 1.
class AutoLevel final : public AutoAdjustment
{
public:
    AutoLevel(const DeviceDescription &description, int id, const QJsonObject &parameters);

protected:
    bool approach(DeviceState &state, double share) override;

private:
    int m_moved;
    int m_lower;
    int m_upper;
    int m_target;
};

} // namespace Simulation
