// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

namespace Simulation {

class DeviceState;

/// Does what the command `id` is there for, by the kind of its effect: "set", "acquisitionStart"
/// and "acquisitionStop" give a feature a value, "latch" copies one feature to another,
/// "softwareTrigger" counts features up, "userSetLoad" and "userSetSave" use the set that the
/// command's selector names, "reset" brings everything back. Without an effect nothing happens.
void applyEffect(DeviceState &state, int id);

} // namespace Simulation
