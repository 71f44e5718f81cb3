// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "browserlog.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/core/logging.h"

void logBrowserFault(const QString &text)
{
    static const quint64 category =
        Core::Logging::getCatId(Plugin::Tessera::LogCategories::Browser);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category, text);
}
