// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace ParameterCollection {

/// The kind of a parameter, with the numbers that parameters and their snapshots exchange.
enum ParameterType : qint32 {
    None = 0,
    Integer = 1,
    Boolean = 2,
    Float = 3,
    Command = 4,
    String = 5,
    Enumeration = 6,
    Category = 7,
    Other = 8, ///< this and every other number: nothing that can be shown or edited
};

} // namespace ParameterCollection
