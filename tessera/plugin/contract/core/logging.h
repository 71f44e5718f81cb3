// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QtGlobal>

class QString;

namespace Core::Logging {

/// How grave an entry is.
enum class ELogLevel {
    Fault = 0, ///< something failed in normal operation; everything else goes on
    Information = 1, ///< worth knowing, nothing failed
    Failure = 2, ///< a part of the application could not be started or taken down
};

/// Resolves the name of a category, such as "vantrel.viewer.plugins.tessera.nodeItem", to its id:
/// the same one for each call, never 0. May be called from every thread.
VANTREL_HOST_EXPORT quint64 getCatId(const char *categoryName);

/// Writes an entry. `categoryId` comes from `getCatId`. May be called from every thread.
VANTREL_HOST_EXPORT void createLogEntry(ELogLevel level, quint64 categoryId, const QString &text);

} // namespace Core::Logging
