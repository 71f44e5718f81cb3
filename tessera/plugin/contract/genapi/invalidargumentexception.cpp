// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "invalidargumentexception.h"

namespace GenICam {

InvalidArgumentException::InvalidArgumentException(const gcstring &description,
                                                   const char *sourceFile, unsigned int sourceLine)
    : GenericException(description, sourceFile, sourceLine)
{
}

InvalidArgumentException::InvalidArgumentException(const InvalidArgumentException &other) = default;
InvalidArgumentException &InvalidArgumentException::operator=(
    const InvalidArgumentException &other) = default;
InvalidArgumentException::~InvalidArgumentException() = default;

} // namespace GenICam
