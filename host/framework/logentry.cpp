// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "logentry.h"

namespace Host {

QString levelText(Core::Logging::ELogLevel level)
{
    using Core::Logging::ELogLevel;
    switch (level) {
    case ELogLevel::Fault:
        return QStringLiteral("Fault");
    case ELogLevel::Information:
        return QStringLiteral("Information");
    case ELogLevel::Failure:
        return QStringLiteral("Failure");
    }
    return QStringLiteral("Level %1").arg(static_cast<int>(level));
}

QString toLine(const LogEntry &entry)
{
    // One call of arg(): a "%1" inside the text is text.
    return QStringLiteral("%1 %2 %3: %4")
        .arg(entry.time.toString(Qt::ISODateWithMs), levelText(entry.level), entry.category,
             entry.text);
}

} // namespace Host
