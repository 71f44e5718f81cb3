// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/localizedplugin.h"

#include <QPointer>
#include <QQuickView>
#include <QSharedPointer>
#include <QVector>

namespace Plugin::AppCore {
class IMenuService;
class IWindowService;
} // namespace Plugin::AppCore
namespace Plugin::ParameterCollectionPool {
class IParameterService;
}

namespace Plugin::Tessera {

class CFeatureTreeWidget;

namespace Internal {
class CFeatureTreeControlService;
class CFeatureTreeStatusService;
class CFeatureTreeUseCaseService;
} // namespace Internal

/// The entry of the plug-in: offers its services, docks its six panes in the host's window and
/// takes them out again at the end.
class CTesseraPlugin final : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID VANTREL_PLUGIN_IID FILE "tessera.json")

public:
    CTesseraPlugin();
    ~CTesseraPlugin() override;

    /// False, with a log entry and without a pane, when the host lacks a service or throws.
    bool initialize(QWeakPointer<Core::Service::IServiceRegistry> registry) override;
    bool start() override;
    bool uninitialize(QWeakPointer<Core::Service::IServiceRegistry> registry) override;

private Q_SLOTS:
    void onFocusWindowChanged(QWindow *pFocusWindow);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    using PanePtr = QPointer<CFeatureTreeWidget>;

    bool addToHost();
    bool findHostServices();
    void registerServices();
    PanePtr addPane(const char *id, const QString &word, bool visible);
    void removePanes();
    void removePane(const PanePtr &pane, const char *id, const QString &kind);

    QWeakPointer<Core::Service::IServiceRegistry> m_registry;
    // Owned: deleted when the host shuts down.
    PanePtr m_allPane;
    PanePtr m_basicPane;
    QVector<PanePtr> m_userPanes; // by number of the user tab
    QSharedPointer<Internal::CFeatureTreeStatusService> m_statusService;
    QSharedPointer<Internal::CFeatureTreeControlService> m_controlService;
    QSharedPointer<Internal::CFeatureTreeUseCaseService> m_useCaseService;
    QSharedPointer<Plugin::AppCore::IMenuService> m_menuService;
    QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> m_parameterService;
    QSharedPointer<Plugin::AppCore::IWindowService> m_windowService;
    QPointer<QQuickView> m_optionsWindow; // left to the host, which deletes it; may be null
    bool m_hasWorkbench = false;
};

} // namespace Plugin::Tessera
