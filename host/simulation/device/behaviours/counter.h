// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/device/behaviours/behaviour.h"

class QJsonObject;

namespace Simulation {

/// A value that counts up while the condition of its behaviour holds, such as images taken.
/// Parameter: "perSecond". At its maximum it starts again from its minimum.
class Counter final : public Behaviour
{
public:
    Counter(int id, double perSecond);

    void advance(DeviceState &state, int elapsedMs) override;

private:
    int m_id;
    double m_perSecond;
    double m_rest = 0.0; ///< what has been gathered below one count
};

} // namespace Simulation
