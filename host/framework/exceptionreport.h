// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QString>

#include <functional>

class QWidget;

namespace Host {

/// What one call of `showException` or `showUnexpectedException` said.
struct VANTREL_HOST_EXPORT ExceptionReport
{
    QString where; ///< qualified name of the reporting function
    QString message; ///< the translated sentence for the user
    QString exceptionText; ///< the exception's own text; empty for an unexpected one
    QWidget *parent = nullptr; // borrowed
};

/// From now on reports go to `hook` and no message box opens; an empty function ends that. The log
/// takes its entry either way. For tests.
VANTREL_HOST_EXPORT void setExceptionReportHook(
    const std::function<void(const ExceptionReport &)> &hook);

} // namespace Host
