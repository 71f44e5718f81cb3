// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "actioncommand.h"

namespace Plugin::AppCore {

IActionCommand::IActionCommand() = default;
IActionCommand::~IActionCommand() = default;

} // namespace Plugin::AppCore
