// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameterdata.h"

#include "host/simulation/description/value.h"

#include <QSharedPointer>

#include <optional>

namespace Simulation {

struct FeatureDescription;
struct Reading;
class NodeOverrides;

using Snapshot = QSharedPointer<const ParameterCollection::ParameterData>;

/// The snapshot of a feature as the device was read. A number outside its limits is shown as not
/// writable. `forced`, if given, replaces the value and makes the snapshot writable whatever the
/// limits say.
Snapshot makeSnapshot(const FeatureDescription &feature, const Reading &reading,
                      const NodeOverrides &overrides, const std::optional<Value> &forced);
/// The snapshot of a category, for which no device is asked.
Snapshot makeCategorySnapshot(const FeatureDescription &category, const NodeOverrides &overrides);
/// True when both say the same in every field.
bool sayTheSame(const Snapshot &left, const Snapshot &right);

} // namespace Simulation
