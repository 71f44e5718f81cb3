// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "genericexception.h"

namespace GenICam {

GenericException::GenericException(const gcstring &description, const char *sourceFile,
                                   unsigned int sourceLine)
    : m_description(description)
    , m_sourceFile(sourceFile)
    , m_sourceLine(sourceLine)
{
}

GenericException::GenericException(const GenericException &other) = default;
GenericException &GenericException::operator=(const GenericException &other) = default;
// Out of line: the type information of an exception must stand in one library only.
GenericException::~GenericException() = default;

const char *GenericException::what() const noexcept
{
    return m_description.c_str();
}

const char *GenericException::description() const noexcept
{
    return m_description.c_str();
}

const char *GenericException::sourceFile() const noexcept
{
    return m_sourceFile.c_str();
}

unsigned int GenericException::sourceLine() const noexcept
{
    return m_sourceLine;
}

} // namespace GenICam
