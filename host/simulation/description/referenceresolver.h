// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace Simulation {

class DeviceDescription;

/// Turns the names in the rules of all features into numbers and enters each feature with those
/// that follow it. A rule that names something unknown is dropped. Returns one line for each.
QStringList resolveReferences(DeviceDescription &description);

} // namespace Simulation
