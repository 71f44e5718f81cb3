// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "behaviours.h"

#include "behaviour.h"

namespace Simulation {

std::vector<std::unique_ptr<Behaviour>> makeBehaviours(const DeviceDescription &)
{
    return {};
}

} // namespace Simulation
