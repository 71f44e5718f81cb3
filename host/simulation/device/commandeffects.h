// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

namespace Simulation {

class DeviceState;

/// Does what the command `id` is there for, as its description says: start or stop the
/// acquisition, load or save a user set, reset the device, set or count up another feature.
void applyEffect(DeviceState &state, int id);

} // namespace Simulation
