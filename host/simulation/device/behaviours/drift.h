// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/device/behaviours/behaviour.h"

class QJsonObject;

namespace Simulation {

/// A value that swings slowly around a middle, as temperatures and measured rates do. Parameters:
/// "around", "amplitude" in units of the feature, "periodMs".
class Drift final : public Behaviour
{
public:
    Drift(int id, const QJsonObject &parameters);

    void advance(DeviceState &state, int elapsedMs) override;

private:
    int m_id;
    double m_middle;
    double m_amplitude;
    double m_periodMs;
    double m_timeMs = 0.0;
};

} // namespace Simulation
