// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/featuredescription.h"

class QJsonObject;

namespace Simulation {

/// The feature that a JSON object describes, with its rules by name. Throws `BadEntry` where
/// something is missing, unknown or no value of its kind.
FeatureDescription readFeature(const QJsonObject &object);
/// The category that a JSON object describes, without its children. Throws `BadEntry`.
FeatureDescription readCategory(const QJsonObject &object);

} // namespace Simulation
