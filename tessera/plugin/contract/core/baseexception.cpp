// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "baseexception.h"

namespace Core::Exception {

BaseException::BaseException(const std::string &message)
    : m_message(message)
{
}

BaseException::BaseException(const BaseException &other) = default;
BaseException &BaseException::operator=(const BaseException &other) = default;
BaseException::~BaseException() = default;

const char *BaseException::what() const noexcept
{
    return m_message.c_str();
}

} // namespace Core::Exception
