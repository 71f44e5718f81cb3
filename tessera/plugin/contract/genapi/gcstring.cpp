// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "gcstring.h"

namespace GenICam {

gcstring::gcstring(const char *text)
    : m_text(text ? text : "")
{
}

gcstring::gcstring(const std::string &text)
    : m_text(text)
{
}

const char *gcstring::c_str() const noexcept
{
    return m_text.c_str();
}

bool gcstring::empty() const noexcept
{
    return m_text.empty();
}

bool gcstring::operator==(const gcstring &other) const
{
    return m_text == other.m_text;
}

bool gcstring::operator!=(const gcstring &other) const
{
    return m_text != other.m_text;
}

} // namespace GenICam
