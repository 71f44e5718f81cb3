// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "id.h"

namespace Core {

CId::CId(const char *text)
    : m_text(QString::fromUtf8(text))
{
}

CId::CId(const CId &other) = default;
CId &CId::operator=(const CId &other) = default;
CId::~CId() = default;

QString CId::toString() const
{
    return m_text;
}

CId CId::withSuffix(const char *suffix) const
{
    CId result(*this);
    result.m_text += QLatin1Char('.') + QString::fromUtf8(suffix);
    return result;
}

bool CId::operator==(CId other) const
{
    return m_text == other.m_text;
}

bool CId::operator!=(CId other) const
{
    return m_text != other.m_text;
}

} // namespace Core
