// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/value.h"

#include <QString>

namespace Simulation {

struct FeatureDescription;

/// An integer as its representation writes it: decimal, "0x…" in lower case, a dotted address, or
/// six bytes with colons; "0" or "1" for the representation "Boolean".
QString textOfInteger(qint64 value, const QString &representation);
/// The bytes of a device's string as text: UTF-8 where they are valid UTF-8, else Latin-1.
QString textOfBytes(const QByteArray &bytes);
/// The value of a feature as text: C locale, no unit, no group separators.
QString textOfValue(const FeatureDescription &feature, const Value &value);

/// The value that `text` names: decimal or "0x" for integers, or the form of their representation,
/// "0" or "1" for switches, the symbolic name of an entry, a character for each byte of a string.
/// Throws `GenICam::InvalidArgumentException` where the text names no value of the feature.
Value valueFromText(const FeatureDescription &feature, const QString &text);

} // namespace Simulation
