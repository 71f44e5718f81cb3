// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "actioncontainer.h"

namespace Plugin::AppCore {

IActionContainer::IActionContainer() = default;
IActionContainer::~IActionContainer() = default;

} // namespace Plugin::AppCore
