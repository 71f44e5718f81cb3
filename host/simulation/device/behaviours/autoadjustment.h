// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/device/behaviours/behaviour.h"

#include "host/simulation/description/value.h"

#include <QVector>

#include <functional>

namespace Simulation {

/// An auto function: moves values step by step to where they should be while its feature, an
/// enumeration with "Off", "Once" and "Continuous", is not off. Once the values are there, "Once"
/// falls back to "Off".
class AutoAdjustment : public Behaviour
{
public:
    /// `id` is the enumeration that switches the function.
    explicit AutoAdjustment(int id);

    void advance(DeviceState &state, int elapsedMs) final;

protected:
    /// Moves what it moves by the given share of the way to the goal. Returns true when there.
    virtual bool approach(DeviceState &state, double share) = 0;

    int id() const;
    /// `present` moved by `share` of the way to `goal`, and onto it where it is near.
    static double moved(double present, double goal, double share);

private:
    int m_id;
};

} // namespace Simulation
