// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace Simulation {

/// What may be done with a feature, ordered and named as in GenApi.
enum class AccessMode : quint8 { NotImplemented, NotAvailable, WriteOnly, ReadOnly, ReadWrite };

constexpr bool isReadable(AccessMode mode)
{
    return mode == AccessMode::ReadOnly || mode == AccessMode::ReadWrite;
}

constexpr bool isWritable(AccessMode mode)
{
    return mode == AccessMode::WriteOnly || mode == AccessMode::ReadWrite;
}

/// What both modes allow.
constexpr AccessMode narrowed(AccessMode mode, AccessMode other)
{
    if (mode == AccessMode::NotImplemented || other == AccessMode::NotImplemented)
        return AccessMode::NotImplemented;
    const bool readable = isReadable(mode) && isReadable(other);
    const bool writable = isWritable(mode) && isWritable(other);
    if (readable)
        return writable ? AccessMode::ReadWrite : AccessMode::ReadOnly;
    return writable ? AccessMode::WriteOnly : AccessMode::NotAvailable;
}

} // namespace Simulation
