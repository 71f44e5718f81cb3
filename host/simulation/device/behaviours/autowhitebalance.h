// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/device/behaviours/autoadjustment.h"

class QJsonObject;

namespace Simulation {

class DeviceDescription;

/// Automatic white balance: moves the ratio of every colour that the selector of a feature offers.
/// Parameter: "moves" names that feature.
class AutoWhiteBalance final : public AutoAdjustment
{
public:
    AutoWhiteBalance(const DeviceDescription &description, int id, const QJsonObject &parameters);

protected:
    bool approach(DeviceState &state, double share) override;

private:
    int m_moved;
};

} // namespace Simulation
