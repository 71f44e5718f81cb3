// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parametername.h"

namespace ParameterCollection {

ParameterName::ParameterName() = default;

ParameterName::ParameterName(const QString &fullName)
    : m_fullName(fullName)
{
}

QString ParameterName::toString() const
{
    return m_fullName;
}

bool operator==(const ParameterName &left, const ParameterName &right)
{
    return left.toString() == right.toString();
}

bool operator!=(const ParameterName &left, const ParameterName &right)
{
    return !(left == right);
}

bool operator<(const ParameterName &left, const ParameterName &right)
{
    return left.toString() < right.toString();
}

uint qHash(const ParameterName &name, uint seed) noexcept
{
    return ::qHash(name.toString(), seed);
}

} // namespace ParameterCollection
