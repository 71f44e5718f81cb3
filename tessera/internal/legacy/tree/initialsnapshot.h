// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSharedPointer>

namespace ParameterCollection {
class IParameter;
struct ParameterData;
} // namespace ParameterCollection

/// The snapshot to start a row with. A category's own, where it can be had; otherwise a blank one
/// of the class for the parameter's type, which knows visibility and presence only. Never null,
/// throws nothing and does not read a value from the device.
QSharedPointer<const ParameterCollection::ParameterData> initialSnapshot(
    const ParameterCollection::IParameter &parameter);
