// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "pluginerror.h"

#include <QString>

namespace Host {

PluginError::PluginError(const QString &path, const QString &reason)
    : std::runtime_error(
        QStringLiteral("Cannot use the plug-in \"%1\": %2").arg(path, reason).toStdString())
{
}

PluginError::PluginError(const PluginError &other) = default;
PluginError &PluginError::operator=(const PluginError &other) = default;
PluginError::~PluginError() = default;

} // namespace Host
