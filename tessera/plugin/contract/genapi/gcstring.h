// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <string>

namespace GenICam {

/// The byte string of the GenICam reference library, as far as exceptions need it: a value type
/// whose text stays valid as long as the object.
class VANTREL_HOST_EXPORT gcstring
{
public:
    gcstring(const char *text = "");
    gcstring(const std::string &text);

    /// Never null; ends with a NUL.
    const char *c_str() const noexcept;
    bool empty() const noexcept;

    bool operator==(const gcstring &other) const;
    bool operator!=(const gcstring &other) const;

private:
    std::string m_text;
};

} // namespace GenICam
