// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/logging.h"
#include "plugin/contract/hostexport.h"

#include <QDateTime>
#include <QMetaType>
#include <QString>

namespace Host {

/// One entry of the log.
struct VANTREL_HOST_EXPORT LogEntry
{
    QDateTime time; ///< local time of writing
    Core::Logging::ELogLevel level = Core::Logging::ELogLevel::Information;
    QString category; ///< dotted name, such as "vantrel.viewer.plugins.tessera.nodeItem"
    QString text;
};

/// The word for a level: "Fault", "Information" or "Failure".
VANTREL_HOST_EXPORT QString levelText(Core::Logging::ELogLevel level);

/// The entry as one line of text: time, level, category and text.
VANTREL_HOST_EXPORT QString toLine(const LogEntry &entry);

} // namespace Host

Q_DECLARE_METATYPE(Host::LogEntry)
