// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

namespace Plugin::Tessera {

/// Makes what stands below ":/tessera" known to Qt, which forgets the resources of a static
/// library otherwise. To be called by whoever reads from there; calling it again costs nothing.
void initResources();

} // namespace Plugin::Tessera
