// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/localizedplugin.h"

#include <QPointer>
#include <QSharedPointer>

namespace Core {
class CId;
}
namespace Plugin::AppCore {
class IWindowService;
}

namespace Plugin::Tessera {

class CFeatureTreeWidget;

namespace Internal {
class CFeatureTreeControlService;
class CFeatureTreeStatusService;
} // namespace Internal

/// The entry of the plug-in: offers its services, docks its panes in the host's window and takes
/// them out again at the end.
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

private:
    bool addToHost();
    void registerServices();
    void dock(CFeatureTreeWidget *pane, const Core::CId &id, const QString &word);
    void removePanes();
    void removeDock(const Core::CId &id, const QString &doing);

    QWeakPointer<Core::Service::IServiceRegistry> m_registry;
    QPointer<CFeatureTreeWidget> m_allPane; // owned: deleted when the host shuts down
    QSharedPointer<Internal::CFeatureTreeStatusService> m_statusService;
    QSharedPointer<Internal::CFeatureTreeControlService> m_controlService;
    QSharedPointer<Plugin::AppCore::IWindowService> m_windowService;
    bool m_hasWorkbench = false;
};

} // namespace Plugin::Tessera
