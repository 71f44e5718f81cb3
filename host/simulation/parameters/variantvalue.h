// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/value.h"

#include <QVariant>

namespace Simulation {

struct FeatureDescription;

/// A value of the memory for people and tests: an integer, a number, true or false, the symbolic
/// name of an entry, or the bytes of a string.
QVariant variantOf(const FeatureDescription &feature, const Value &value);
/// The reverse. Text for a string is taken in the encoding of the feature. Throws
/// `GenICam::InvalidArgumentException` for a name that no entry has.
Value valueOf(const FeatureDescription &feature, const QVariant &variant);

} // namespace Simulation
