// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

namespace Simulation {

class Behaviour;
class DeviceDescription;

/// The behaviours that the features of `description` ask for.
std::vector<std::unique_ptr<Behaviour>> makeBehaviours(const DeviceDescription &description);

} // namespace Simulation
