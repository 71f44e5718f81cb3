// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <exception>

class QString;
class QWidget;

namespace Core::Exception {
class BaseException;
}
namespace GenICam {
class GenericException;
}

// Message boxes for something that failed under the user's hands. They return at once and never
// run an event loop of their own, so that they may be called from inside a model; of boxes with the
// same text only one is open at a time.
//
// `where` is the qualified name of the reporting function, for the log; `message` is the translated
// sentence for the user; the exception's own text stands below it. `parent` may be null.

VANTREL_HOST_EXPORT void showException(const QString &where, const std::exception &e,
                                       const QString &message, QWidget *parent);
VANTREL_HOST_EXPORT void showException(const QString &where,
                                       const Core::Exception::BaseException &e,
                                       const QString &message, QWidget *parent);
VANTREL_HOST_EXPORT void showException(const QString &where, const GenICam::GenericException &e,
                                       const QString &message, QWidget *parent);
/// For what is none of these kinds.
VANTREL_HOST_EXPORT void showUnexpectedException(const QString &where, const QString &message,
                                                 QWidget *parent);
