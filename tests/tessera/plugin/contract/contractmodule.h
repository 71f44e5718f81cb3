// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

/// Makes a parameter of a kind; one of no special kind for those without a class of their own.
using MakeParameter = ParameterCollection::IParameter *(*)(int kind);
/// Throws an exception with the text "from afar".
using ThrowException = void (*)(int kind);

enum ExceptionKind {
    Generic = 0,
    InvalidArgument = 1,
    Standard = 2,
    Base = 3,
    Unknown = 4,
};
