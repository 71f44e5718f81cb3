// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

/// Registers every type that travels through signals of the contract with Qt's meta-type system,
/// under the text that the signals use. Runs by itself when the library is loaded; calling it
/// again changes nothing.
VANTREL_HOST_EXPORT void registerContractMetaTypes();
