// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "log.h"

namespace Core::Logging {

quint64 getCatId(const char *categoryName)
{
    return Host::Log::instance().categoryId(QByteArray(categoryName));
}

void createLogEntry(ELogLevel level, quint64 categoryId, const QString &text)
{
    Host::Log::instance().write(level, categoryId, text);
}

} // namespace Core::Logging
