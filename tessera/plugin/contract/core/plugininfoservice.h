// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/service.h"

class QString;

namespace Core::Plugin {

/// The catalogue of the plug-ins that the host has loaded. The only service that may be absent.
class VANTREL_HOST_EXPORT IPluginInfoService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IPluginInfoService(QObject *parent);
    ~IPluginInfoService() override;

    /// `pluginName` is the field "Name" of the plug-in's metadata.
    virtual bool isPluginAvailable(const QString &pluginName) const = 0;
};

} // namespace Core::Plugin
