// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "pluginloader.h"

#include "guardedcall.h"
#include "plugin/contract/core/localizedplugin.h"
#include "plugin/contract/core/logging.h"
#include "plugincatalogue.h"
#include "pluginerror.h"
#include "pluginmetadata.h"
#include "quick.h"
#include "serviceregistry.h"

#include <QCoreApplication>
#include <QPluginLoader>

#include <algorithm>

namespace Host {

using Core::Plugin::ALocalizedPlugin;
using Core::Plugin::IPlugin;

namespace {

void logFailure(const QString &plugin, const QString &what)
{
    static const quint64 category = Core::Logging::getCatId("vantrel.viewer.pluginLoader");
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Failure, category,
                                  QStringLiteral("Plug-in \"%1\": %2").arg(plugin, what));
}

// Calls one step of a plug-in's life; what it throws goes to the log.
template<typename Function> void guarded(const QString &plugin, const char *step, Function function)
{
    if (const auto error = exceptionOf(function)) {
        logFailure(plugin, QStringLiteral("%1 threw: %2").arg(QLatin1String(step), *error));
    }
}

IPlugin *instantiate(QPluginLoader &loader)
{
    // Resolved at once, a missing symbol is an error here and not a crash later. The code stays, as
    // services and type registrations live on after the instance.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    QObject *object = nullptr;
    if (const auto error = exceptionOf([&] { object = loader.instance(); })) {
        throw PluginError(loader.fileName(),
                          QStringLiteral("its constructor threw: %1").arg(*error));
    }
    if (object == nullptr) {
        throw PluginError(loader.fileName(), loader.errorString());
    }
    auto *plugin = qobject_cast<IPlugin *>(object);
    if (plugin == nullptr) {
        throw PluginError(loader.fileName(),
                          QStringLiteral("its class %1 is no plug-in of this host.")
                              .arg(QLatin1String(object->metaObject()->className())));
    }
    return plugin;
}

} // namespace

PluginLoader::PluginLoader(const QSharedPointer<ServiceRegistry> &registry,
                           const QSharedPointer<PluginCatalogue> &catalogue)
    : m_registry(registry)
    , m_catalogue(catalogue)
{
}

PluginLoader::~PluginLoader()
{
    shutDown();
}

void PluginLoader::load(const QString &path, const QString &language)
{
    QPluginLoader loader(path);
    // Qt leaves the name empty where there is no such file.
    if (loader.fileName().isEmpty()) {
        throw PluginError(path, QStringLiteral("there is no such file."));
    }
    const PluginMetaData metaData = PluginMetaData::read(loader);
    if (m_catalogue->isPluginAvailable(metaData.name)) {
        throw PluginError(path, QStringLiteral("\"%1\" is there already.").arg(metaData.name));
    }
    metaData.requireDependencies(*m_catalogue, path);
    m_plugins.push_back({instantiate(loader), metaData.name});
    Plugin &plugin = m_plugins.back();
    plugin.instance->setObjectName(metaData.name);
    if (auto *localized = qobject_cast<ALocalizedPlugin *>(plugin.instance)) {
        guarded(plugin.name, "setLanguage", [&] { localized->setLanguage(language); });
    }
    initialize(plugin, path);
    m_catalogue->add(metaData.name, metaData.version);
}

void PluginLoader::initialize(Plugin &plugin, const QString &path)
{
    const auto error = exceptionOf(
        [&] { plugin.initialized = plugin.instance->initialize(m_registry.toWeakRef()); });
    if (error) {
        throw PluginError(path, QStringLiteral("it threw while it was initialized: ") + *error);
    }
    if (!plugin.initialized) {
        throw PluginError(path, QStringLiteral("it could not be initialized."));
    }
}

void PluginLoader::start()
{
    for (Plugin &plugin : m_plugins) {
        if (!plugin.initialized || plugin.started) {
            continue;
        }
        guarded(plugin.name, "start", [&] { plugin.started = plugin.instance->start(); });
        if (!plugin.started) {
            logFailure(plugin.name, QStringLiteral("did not start."));
        }
    }
}

QStringList PluginLoader::names() const
{
    QStringList result;
    for (const Plugin &plugin : m_plugins) {
        if (plugin.initialized) {
            result.append(plugin.name);
        }
    }
    return result;
}

bool PluginLoader::mayClose(bool forced)
{
    bool result = true;
    for (const Plugin &plugin : m_plugins) {
        if (plugin.initialized) {
            guarded(plugin.name, "checkPluginClosability",
                    [&] { result = plugin.instance->checkPluginClosability(forced) && result; });
        }
    }
    return result;
}

void PluginLoader::shutDown()
{
    if (m_down) {
        return;
    }
    m_down = true;
    std::for_each(m_plugins.rbegin(), m_plugins.rend(),
                  [this](Plugin &plugin) { uninitialize(plugin); });
    for (; !m_plugins.empty(); m_plugins.pop_back()) {
        delete m_plugins.back().instance;
    }
    m_registry->clear();
    deleteQuickWindows();
}

void PluginLoader::uninitialize(Plugin &plugin)
{
    if (!plugin.initialized || plugin.instance.isNull()) {
        return;
    }
    plugin.initialized = false;
    auto mode = IPlugin::UninitializeMode::Immediate;
    guarded(plugin.name, "aboutToUninitialize",
            [&] { mode = plugin.instance->aboutToUninitialize(); });
    if (mode == IPlugin::UninitializeMode::AfterPendingEvents) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    bool done = false;
    guarded(plugin.name, "uninitialize",
            [&] { done = plugin.instance->uninitialize(m_registry.toWeakRef()); });
    if (!done) {
        logFailure(plugin.name, QStringLiteral("was not taken down properly."));
    }
}

} // namespace Host
