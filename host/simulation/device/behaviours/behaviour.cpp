// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "behaviour.h"

namespace Simulation {

Behaviour::~Behaviour() = default;

} // namespace Simulation
