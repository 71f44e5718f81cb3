// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "exceptionbarrier.h"

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/genericexception.h"

#include <exception>

namespace Plugin::Tessera {

CaughtException currentException()
{
    try {
        throw;
    } catch (const GenICam::GenericException &e) {
        return {ExceptionKind::GenICam, QString::fromUtf8(e.what())};
    } catch (const std::exception &e) {
        return {ExceptionKind::Standard, QString::fromUtf8(e.what())};
    } catch (const Core::Exception::BaseException &e) {
        return {ExceptionKind::Host, QString::fromUtf8(e.what())};
    } catch (...) {
        return {};
    }
}

} // namespace Plugin::Tessera
