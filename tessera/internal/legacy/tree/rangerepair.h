// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSharedPointer>

namespace ParameterCollection {
class IParameter;
struct ParameterData;
} // namespace ParameterCollection

/// True when the snapshot is of a writable number whose value lies outside its limits. Limits that
/// contradict each other hold no value out.
bool isOutOfRange(const ParameterCollection::ParameterData &snapshot);

/// True when both are snapshots of a number with the same value and the same limits.
bool haveSameRange(const ParameterCollection::ParameterData &left,
                   const ParameterCollection::ParameterData &right);

/// Writes the limit nearest to a value that is out of range. False, and nothing is written, for a
/// parameter that is no number of the snapshot's kind. A refusal of the device is dropped.
bool pullIntoRange(const QSharedPointer<ParameterCollection::IParameter> &parameter,
                   const ParameterCollection::ParameterData &snapshot);
