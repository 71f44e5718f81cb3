// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "tesseraplugin.h"

#include "internal/legacy/tree/displaynamecache.h"
#include "pane/featurepane.h"
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
#include "plugin/services/servicelookup.h"

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
{
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
                   delete m_allPane.data(); // its dock may not exist
                   m_allPane.clear();
                   removePanes();
                   logException(e, QStringLiteral("adding Tessera to DockWidget"));
               });
    return succeeded;
}

bool CTesseraPlugin::addToHost()
{
    registerServices();
    if (const auto plugins = findService<Core::Plugin::IPluginInfoService>(m_registry)) {
        m_hasWorkbench = plugins->isPluginAvailable(QLatin1String(Ids::WorkbenchPlugin));
    }
    const auto menuService = findService<AppCore::IMenuService>(m_registry);
    const auto parameterService =
        findService<ParameterCollectionPool::IParameterService>(m_registry);
    m_windowService = findService<AppCore::IWindowService>(m_registry);
    if (!menuService || !parameterService || !m_windowService) {
        logFailure(QStringLiteral(
            "At least one service necessary for initializing the Tessera plugin is missing."));
        return false;
    }
    const Core::CId id(Ids::AllPane);
    m_allPane =
        new CFeatureTreeWidget(menuService, m_controlService, parameterService, id, m_hasWorkbench);
    dock(m_allPane, id, tr("All"));
    return true;
}

void CTesseraPlugin::registerServices()
{
    if (const auto registry = m_registry.toStrongRef()) {
        registry->registerService(m_statusService);
        registry->registerService(m_controlService);
    }
}

void CTesseraPlugin::dock(CFeatureTreeWidget *pane, const Core::CId &id, const QString &word)
{
    pane->setWindowTitle(tr("Features") + QStringLiteral(" \u2013 ") + word);
    using Status = FeatureTree::IFeatureTreeStatusService;
    Status *status = m_statusService.data();
    connect(pane, &CFeatureTreeWidget::visibilityChanged, status, &Status::visibilityChanged);
    connect(pane, &CFeatureTreeWidget::currentChanged, status, &Status::currentChanged);
    connect(pane, &CFeatureTreeWidget::newText, status, &Status::newText);
    m_windowService->addDockWidget(id, pane, featurePaneArea, true, false);
}

bool CTesseraPlugin::start()
{
    return true;
}

bool CTesseraPlugin::uninitialize(QWeakPointer<Core::Service::IServiceRegistry> registry)
{
    Q_UNUSED(registry)
    removePanes();
    return true;
}

void CTesseraPlugin::removePanes()
{
    if (m_allPane) {
        removeDock(Core::CId(Ids::AllPane),
                   QStringLiteral("removing FeatureTreeWidgetAllSettings"));
        delete m_allPane.data(); // unless the host did
        m_allPane.clear();
    }
}

void CTesseraPlugin::removeDock(const Core::CId &id, const QString &doing)
{
    runGuarded([&] { m_windowService->removeDockWidget(id); },
               [&](const CaughtException &e) { logException(e, doing); });
}

} // namespace Plugin::Tessera
