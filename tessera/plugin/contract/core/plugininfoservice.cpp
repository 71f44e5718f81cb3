// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugininfoservice.h"

namespace Core::Plugin {

IPluginInfoService::IPluginInfoService(QObject *parent)
    : IService(parent)
{
}

IPluginInfoService::~IPluginInfoService() = default;

} // namespace Core::Plugin
