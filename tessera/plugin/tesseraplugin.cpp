// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "tesseraplugin.h"

#include "internal/featuretreeusecaseservice.h"
#include "internal/legacy/tree/displaynamecache.h"
#include "internal/view/optionswindow.h"
#include "pane/featurepane.h"
#include "pane/panesettings.h"
#include "plugin/constants/ids.h"
#include "plugin/constants/logcategories.h"
#include "plugin/contract/appcore/menuservice.h"
#include "plugin/contract/appcore/windowservice.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/core/plugininfoservice.h"
#include "plugin/contract/viewer/parameterservice.h"
#include "plugin/services/exceptionbarrier.h"
#include "plugin/services/featuretreecontrolservice.h"
#include "plugin/services/featuretreestatusservice.h"
#include "plugin/services/pluginresources.h"
#include "plugin/services/servicelookup.h"

#include <QApplication>
#include <QScopeGuard>

#include <memory>

namespace Plugin::Tessera {

namespace {

constexpr int featurePaneArea = 3;

void logFailure(const QString &text)
{
    static const quint64 category = Core::Logging::getCatId(LogCategories::Plugin);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Failure, category, text);
}

void logException(const CaughtException &e, const QString &doing)
{
    switch (e.kind) {
    case ExceptionKind::GenICam:
        logFailure(
            QStringLiteral("GenICam Exception caught while %1. Message: %2").arg(doing, e.message));
        break;
    case ExceptionKind::Standard:
    case ExceptionKind::Host:
        logFailure(QStringLiteral("Exception caught while %1. Message: %2").arg(doing, e.message));
        break;
    case ExceptionKind::Unknown:
        logFailure(QStringLiteral("Unknown exception caught while %1.").arg(doing));
        break;
    }
}

} // namespace

CTesseraPlugin::CTesseraPlugin()
    : m_statusService(new Internal::CFeatureTreeStatusService(nullptr))
    , m_controlService(new Internal::CFeatureTreeControlService(nullptr))
    , m_useCaseService(new Internal::CFeatureTreeUseCaseService(nullptr))
{
    initResources(); // the host sets the language before anything else
    Internal::View::registerOptionsWindowTypes();
    loadDisplayNameCache();
}

CTesseraPlugin::~CTesseraPlugin()
{
    saveDisplayNameCache();
}

// clazy:excludeall=function-args-by-ref
// The contract passes the registry by value.

bool CTesseraPlugin::initialize(QWeakPointer<Core::Service::IServiceRegistry> registry)
{
    m_registry = registry;
    bool succeeded = false;
    runGuarded([&] { succeeded = addToHost(); },
               [&](const CaughtException &e) {
                   removePanes();
                   logException(e, QStringLiteral("adding Tessera to DockWidget"));
               });
    return succeeded;
}

bool CTesseraPlugin::addToHost()
{
    m_useCaseService->load(); // says itself what was amiss
    registerServices();
    if (!findHostServices()) {
        logFailure(QStringLiteral(
            "At least one service necessary for initializing the Tessera plugin is missing."));
        return false;
    }
    m_allPane = addPane(Ids::AllPane, tr("All"), true);
    m_basicPane = addPane(Ids::BasicPane, tr("Basic"), true);
    for (const char *id : Ids::UserPanes) {
        QString name = loadPaneSettings(Core::CId(id)).userTabName;
        name.replace(QLatin1Char('&'), QLatin1String("&&")); // no mnemonic
        m_userPanes.append(addPane(id, name, false));
    }
    return true;
}

void CTesseraPlugin::registerServices()
{
    if (const auto registry = m_registry.toStrongRef()) {
        registry->registerService(m_statusService);
        registry->registerService(m_controlService);
        registry->registerService(m_useCaseService);
    }
}

// In between the window is made, so that it is there also when a service is missing.
bool CTesseraPlugin::findHostServices()
{
    if (const auto plugins = findService<Core::Plugin::IPluginInfoService>(m_registry)) {
        m_hasWorkbench = plugins->isPluginAvailable(QLatin1String(Ids::WorkbenchPlugin));
    }
    m_optionsWindow = Internal::View::createOptionsWindow();
    m_menuService = findService<AppCore::IMenuService>(m_registry);
    m_parameterService = findService<ParameterCollectionPool::IParameterService>(m_registry);
    m_windowService = findService<AppCore::IWindowService>(m_registry);
    return m_menuService && m_parameterService && m_windowService;
}

// Until it is docked, a pane does not outlive an exception.
CTesseraPlugin::PanePtr CTesseraPlugin::addPane(const char *id, const QString &word, bool visible)
{
    PanePtr pane = new CFeatureTreeWidget(m_menuService, m_controlService, m_parameterService,
                                          m_useCaseService, m_windowService, Core::CId(id),
                                          m_optionsWindow, m_hasWorkbench);
    auto halfBuilt = qScopeGuard([&pane] { delete pane.data(); }); // the host may have done so
    pane->setWindowTitle(tr("Features") + QStringLiteral(" \u2013 ") + word);
    using Status = FeatureTree::IFeatureTreeStatusService;
    Status *status = m_statusService.data();
    connect(pane.data(), &CFeatureTreeWidget::visibilityChanged, status,
            &Status::visibilityChanged);
    connect(pane.data(), &CFeatureTreeWidget::currentChanged, status, &Status::currentChanged);
    connect(pane.data(), &CFeatureTreeWidget::newText, status, &Status::newText);
    m_windowService->addDockWidget(Core::CId(id), pane.data(), featurePaneArea, visible, false);
    halfBuilt.dismiss();
    return pane;
}

bool CTesseraPlugin::start()
{
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this,
            &CTesseraPlugin::onFocusWindowChanged);
    return true;
}

bool CTesseraPlugin::uninitialize(QWeakPointer<Core::Service::IServiceRegistry> registry)
{
    Q_UNUSED(registry)
    disconnect(qGuiApp, &QGuiApplication::focusWindowChanged, this,
               &CTesseraPlugin::onFocusWindowChanged);
    removePanes();
    return true;
}

// Edit Feature Tabs stays above the application's windows, but not above a dialog that waits for
// an answer, nor above other applications.
void CTesseraPlugin::onFocusWindowChanged(QWindow *pFocusWindow)
{
    if (!m_optionsWindow) {
        return;
    }
    const bool staysOnTop = pFocusWindow && !QApplication::activeModalWidget();
    m_optionsWindow->setFlags(Internal::View::optionsWindowFlags(staysOnTop));
    if (staysOnTop) {
        m_optionsWindow->raise();
    } else {
        m_optionsWindow->lower();
    }
}

void CTesseraPlugin::removePanes()
{
    removePane(m_allPane, Ids::AllPane, QStringLiteral("All"));
    removePane(m_basicPane, Ids::BasicPane, QStringLiteral("Basic"));
    for (int i = 0; i < m_userPanes.size(); ++i) {
        removePane(m_userPanes.at(i), Ids::UserPanes.at(static_cast<std::size_t>(i)),
                   QStringLiteral("User"));
    }
    m_userPanes.clear();
}

// The host may have deleted the pane, now or before.
void CTesseraPlugin::removePane(const PanePtr &pane, const char *id, const QString &kind)
{
    const auto logFailureOf = [&](const QString &doing) {
        return [doing, kind](const CaughtException &e) {
            logException(e, doing + QStringLiteral(" FeatureTreeWidget%1Settings").arg(kind));
        };
    };
    if (pane) {
        runGuarded([&] { m_windowService->removeDockWidget(Core::CId(id)); },
                   logFailureOf(QStringLiteral("removing")));
    }
    if (pane) {
        const std::unique_ptr<CFeatureTreeWidget> last(pane.data());
        runGuarded([&] { last->retire(); }, logFailureOf(QStringLiteral("deleting")));
    }
}

} // namespace Plugin::Tessera
