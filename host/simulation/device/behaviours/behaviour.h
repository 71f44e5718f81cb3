// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace Simulation {

class DeviceState;

/// Something that a device does by itself while time goes on, such as warming up. Works on the
/// device's thread, under its lock.
class Behaviour
{
public:
    Behaviour() = default;
    virtual ~Behaviour();
    Q_DISABLE_COPY_MOVE(Behaviour)

    /// Moves what it moves by `elapsedMs` milliseconds.
    virtual void advance(DeviceState &state, int elapsedMs) = 0;
};

} // namespace Simulation
