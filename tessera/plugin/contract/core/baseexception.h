// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <string>

namespace Core::Exception {

/// Base of the host's own exceptions. It is no `std::exception`.
class VANTREL_HOST_EXPORT BaseException
{
public:
    explicit BaseException(const std::string &message);
    BaseException(const BaseException &other);
    BaseException &operator=(const BaseException &other);
    virtual ~BaseException();

    /// The message, valid as long as the exception. Not virtual, as hosts declare it.
    const char *what() const noexcept;

private:
    std::string m_message;
};

} // namespace Core::Exception
