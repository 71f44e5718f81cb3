// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/genericexception.h"

#include <QString>

#include <exception>
#include <optional>

namespace Host {

/// Calls `function` and keeps its exceptions: the text of one that came, or nothing.
template<typename Function> std::optional<QString> exceptionOf(Function function)
{
    try {
        function();
    } catch (const GenICam::GenericException &e) {
        return QString::fromUtf8(e.what());
    } catch (const std::exception &e) {
        return QString::fromUtf8(e.what());
    } catch (const Core::Exception::BaseException &e) {
        return QString::fromUtf8(e.what());
    } catch (...) {
        return QStringLiteral("unknown exception");
    }
    return std::nullopt;
}

} // namespace Host
