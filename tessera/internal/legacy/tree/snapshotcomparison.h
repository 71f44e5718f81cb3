// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

namespace ParameterCollection {
struct ParameterData;
} // namespace ParameterCollection

/// True when both snapshots are of one type and tell the same, so that nothing on the screen
/// differs. Numbers that are none are alike.
bool tellTheSame(const ParameterCollection::ParameterData &left,
                 const ParameterCollection::ParameterData &right);
