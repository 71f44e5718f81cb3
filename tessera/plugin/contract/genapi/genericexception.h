// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/genapi/gcstring.h"
#include "plugin/contract/hostexport.h"

namespace GenICam {

/// Base of everything that a GenICam library throws. It is not a `std::exception`: a catch site
/// names it first, then `std::exception`, then `Core::Exception::BaseException`, then the rest.
class VANTREL_HOST_EXPORT GenericException
{
public:
    /// `description` is for people; `sourceFile` and `sourceLine` tell where it was thrown.
    GenericException(const gcstring &description, const char *sourceFile, unsigned int sourceLine);
    GenericException(const GenericException &other);
    GenericException &operator=(const GenericException &other);
    virtual ~GenericException();

    /// The whole message, valid as long as the exception.
    virtual const char *what() const noexcept;

    const char *description() const noexcept;
    const char *sourceFile() const noexcept;
    unsigned int sourceLine() const noexcept;

private:
    gcstring m_description;
    gcstring m_sourceFile;
    unsigned int m_sourceLine = 0;
};

} // namespace GenICam
