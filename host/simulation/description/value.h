// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <variant>

namespace Simulation {

/// What one cell of a camera's memory holds: an integer (also a switch as 0 or 1 and a choice as
/// the number of its entry), a floating point number, or the bytes of a string.
using Value = std::variant<qint64, double, QByteArray>;

/// The integer in `value`; 0 where it holds something else.
qint64 integerOf(const Value &value);
/// The number in `value`, integers converted; 0 for bytes.
double numberOf(const Value &value);
/// The bytes in `value`; empty where it holds a number.
QByteArray bytesOf(const Value &value);

} // namespace Simulation
