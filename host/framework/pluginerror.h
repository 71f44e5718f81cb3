// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <stdexcept>

class QString;

namespace Host {

/// Why a plug-in was refused: one line that names the file and the reason.
// Exceptions are copied when thrown.
class VANTREL_HOST_EXPORT PluginError final
    : public std::runtime_error // clazy:exclude=copyable-polymorphic
{
public:
    PluginError(const QString &path, const QString &reason);
    PluginError(const PluginError &other);
    PluginError &operator=(const PluginError &other);
    ~PluginError() override;
};

} // namespace Host
