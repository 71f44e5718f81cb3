// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSharedPointer>

namespace Simulation {

class SimulatedCollection;

/// A live collection of `features` features of all kinds in turn, `perCategory` in each category
/// under "@CameraDevice", named "Feature1" and so on in "Category1" and so on.
QSharedPointer<SimulatedCollection> generateCollection(int features, int perCategory = 50);

} // namespace Simulation
