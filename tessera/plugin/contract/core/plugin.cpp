// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin.h"

namespace Core::Plugin {

IPlugin::IPlugin() = default;
IPlugin::~IPlugin() = default;

bool IPlugin::checkPluginClosability(bool forced)
{
    Q_UNUSED(forced)
    return true;
}

IPlugin::UninitializeMode IPlugin::aboutToUninitialize()
{
    return UninitializeMode::Immediate;
}

} // namespace Core::Plugin
