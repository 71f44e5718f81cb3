// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Plugin::Tessera {

/// The kinds of exception that may come out of the host and its parameter library.
enum class ExceptionKind {
    GenICam, ///< `GenICam::GenericException`
    Standard, ///< `std::exception`
    Host, ///< `Core::Exception::BaseException`
    Unknown, ///< anything else
};

/// What is known of an exception that was caught.
struct CaughtException
{
    ExceptionKind kind = ExceptionKind::Unknown;
    QString message; ///< the exception's own text; empty for `Unknown`
};

/// Tells what is being handled. To be called inside a catch block only.
CaughtException currentException();

/// Runs `action`; an exception ends in `onException(const CaughtException &)`. True when the action
/// came to its end.
template<typename Action, typename Handler> bool runGuarded(Action &&action, Handler &&onException)
{
    try {
        action();
        return true;
    } catch (...) {
        onException(currentException());
        return false;
    }
}

/// Runs `action` and drops an exception. True when the action came to its end.
template<typename Action> bool runGuarded(Action &&action)
{
    return runGuarded(action, [](const CaughtException &) {});
}

} // namespace Plugin::Tessera
