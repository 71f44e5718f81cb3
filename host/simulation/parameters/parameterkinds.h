// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSharedPointer>

namespace ParameterCollection {
class IParameter;
}

namespace Simulation {

class ParameterLibrary;

/// A parameter of the kind that the feature `id` has.
QSharedPointer<ParameterCollection::IParameter> makeParameter(
    const QSharedPointer<ParameterLibrary> &library, int id);

} // namespace Simulation
