// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/fakecollection.h"

namespace Tests {

/// The parameter over a node. `delayed` is the collection's switch.
QSharedPointer<ParameterCollection::IParameter> makeFakeParameter(
    const QSharedPointer<FakeNode> &node,
    const bool &delayed); // clazy:exclude=function-args-by-value

} // namespace Tests
