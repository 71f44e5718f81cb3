// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/featurerules.h"

namespace Simulation {

/// What the companion of a float shows for `value` of a float between `minimum` and `maximum`.
qint64 aliasFromFloat(const AliasRule &rule, double value, double minimum, double maximum);
/// What the float becomes when its companion is set to `alias`.
double floatFromAlias(const AliasRule &rule, qint64 alias, double minimum, double maximum);

} // namespace Simulation
