// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/genapi/genericexception.h"

namespace GenICam {

/// An argument that cannot be: text that is no number, limits that contradict each other, a value
/// outside its range.
class VANTREL_HOST_EXPORT InvalidArgumentException : public GenericException
{
public:
    InvalidArgumentException(const gcstring &description, const char *sourceFile,
                             unsigned int sourceLine);
    InvalidArgumentException(const InvalidArgumentException &other);
    InvalidArgumentException &operator=(const InvalidArgumentException &other);
    ~InvalidArgumentException() override;
};

} // namespace GenICam
