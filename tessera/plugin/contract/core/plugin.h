// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/serviceregistry.h"
#include "plugin/contract/hostexport.h"

#include <QObject>
#include <QWeakPointer>

/// The interface id that the metadata of a plug-in carries; a host loads nothing else.
#define VANTREL_PLUGIN_IID "org.vantrel.vantrelApp.VantrelViewerPlugin"

namespace Core::Plugin {

/// One plug-in. The host calls, on the GUI thread and in this order: the constructor, `setLanguage`
/// (localized plug-ins), `initialize`, `start`; at the end `checkPluginClosability`,
/// `aboutToUninitialize`, `uninitialize`, the destructor.
class VANTREL_HOST_EXPORT IPlugin : public QObject
{
    Q_OBJECT

public:
    /// How the host waits before `uninitialize`.
    enum class UninitializeMode {
        Immediate, ///< call it at once
        AfterPendingEvents, ///< deliver what is queued in the event loop first
    };

    IPlugin();
    ~IPlugin() override;

    /// Called once. False: the plug-in failed and must not be used further; its services stay
    /// registered.
    virtual bool initialize(QWeakPointer<Core::Service::IServiceRegistry> registry) = 0;
    /// Called after all plug-ins are initialized.
    virtual bool start() = 0;
    /// Called once at shut-down: the plug-in takes back what it added to the host.
    virtual bool uninitialize(QWeakPointer<Core::Service::IServiceRegistry> registry) = 0;
    /// Asked when the main window is to close; false keeps it open. `forced` tells that the host
    /// will close in any case. The base says true.
    virtual bool checkPluginClosability(bool forced);
    /// Asked before `uninitialize`. The base says `Immediate`.
    virtual UninitializeMode aboutToUninitialize();
};

} // namespace Core::Plugin
