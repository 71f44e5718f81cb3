// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/plugin.h"

#include <QPointer>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

#include <vector>

namespace Host {

class PluginCatalogue;
class ServiceRegistry;

/// Brings plug-ins up and takes them down in the documented order. Instances are the loader's, code
/// stays loaded until the process ends. Organisation and application name are set, and the host's
/// services registered, before `load`.
class VANTREL_HOST_EXPORT PluginLoader
{
public:
    PluginLoader(const QSharedPointer<ServiceRegistry> &registry,
                 const QSharedPointer<PluginCatalogue> &catalogue);
    /// Does what `shutDown` does.
    ~PluginLoader();
    Q_DISABLE_COPY_MOVE(PluginLoader)

    /// Loads and initializes the plug-in in the file `path`; `language` is the code of the language
    /// in force. Throws `PluginError` where the file is refused before any code of it runs, cannot
    /// be loaded or does not initialize. A plug-in that did not initialize is not used further.
    void load(const QString &path, const QString &language);
    /// Starts the plug-ins that were initialized and not started yet. One that does not start is
    /// reported in the log.
    void start();
    /// Names of the initialized plug-ins, in the order of their loading.
    QStringList names() const;

    /// Asks every plug-in whether it may be closed.
    bool mayClose(bool forced);
    /// Takes everything down, the last loaded plug-in first: plug-ins, registry, left-over Qt Quick
    /// windows. The application ends after it. A second call does nothing.
    void shutDown();

private:
    struct Plugin
    {
        QPointer<Core::Plugin::IPlugin> instance; // owned
        QString name;
        bool initialized = false;
        bool started = false;
    };

    void initialize(Plugin &plugin, const QString &path);
    void uninitialize(Plugin &plugin);

    QSharedPointer<ServiceRegistry> m_registry;
    QSharedPointer<PluginCatalogue> m_catalogue;
    std::vector<Plugin> m_plugins;
    bool m_down = false;
};

} // namespace Host
