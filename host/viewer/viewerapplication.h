// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "options.h"

#include <QObject>
#include <QScopedPointer>
#include <QSharedPointer>

namespace Host {
class ParameterPool;
class PluginCatalogue;
class PluginLoader;
class ServiceRegistry;
} // namespace Host

namespace Viewer {

class CurrentFeature;
class MainWindow;
class SourceSession;

/// The running viewer: makes the services, loads the plug-in, opens the sources, and takes all of
/// it down again in the order that plug-ins rely on.
class ViewerApplication final : public QObject
{
    Q_OBJECT

public:
    explicit ViewerApplication(Options options, QObject *parent = nullptr);
    /// Shuts down if nobody has done so.
    ~ViewerApplication() override;

    /// Starts everything that `options` ask for. `pluginFolder` holds the modules to load.
    /// \throws std::exception or Core::Exception::BaseException with a one-line message: no
    /// plug-in, a foreign one, an unknown source, pane or feature.
    void start(const QString &pluginFolder);
    /// Closes the sources, takes the plug-in down, and drops the services. Runs once.
    void shutDown();

    MainWindow *window() const;
    SourceSession *session() const;

    /// The text that "Copy Camera Features" gives for the active source.
    QString featureText() const;

Q_SIGNALS:
    /// An unattended run has done its work; `exitCode` is for the process.
    void finished(int exitCode);

private:
    void makeServices();
    void loadPlugins(const QString &folder);
    void openSources();
    void applyPaneOptions();
    void startUnattendedWork();

    Options m_options;
    QSharedPointer<Host::ServiceRegistry> m_registry;
    QSharedPointer<Host::PluginCatalogue> m_catalogue;
    QSharedPointer<Host::ParameterPool> m_pool;
    QScopedPointer<SourceSession> m_session;
    QScopedPointer<CurrentFeature> m_feature;
    QScopedPointer<MainWindow> m_window;
    QScopedPointer<Host::PluginLoader> m_loader;
};

} // namespace Viewer
