// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "value.h"

namespace Simulation {

qint64 integerOf(const Value &value)
{
    const auto *integer = std::get_if<qint64>(&value);
    return integer ? *integer : 0;
}

double numberOf(const Value &value)
{
    if (const auto *number = std::get_if<double>(&value))
        return *number;
    return static_cast<double>(integerOf(value));
}

QByteArray bytesOf(const Value &value)
{
    const auto *bytes = std::get_if<QByteArray>(&value);
    return bytes ? *bytes : QByteArray();
}

} // namespace Simulation
