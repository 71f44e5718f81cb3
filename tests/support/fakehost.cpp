// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/fakehost.h"

namespace Tests {

void FakeRegistry::registerService(QSharedPointer<Core::Service::IService> service)
{
    raise(faults.value(QStringLiteral("registerService")));
    const QWriteLocker locker(&m_lock);
    m_services.append(service);
}

QList<QSharedPointer<Core::Service::IService>> FakeRegistry::services() const
{
    return m_services;
}

QReadWriteLock *FakeRegistry::lock() const
{
    return &m_lock;
}

FakePluginInfoService::FakePluginInfoService()
    : IPluginInfoService(nullptr)
{
}

bool FakePluginInfoService::isPluginAvailable(const QString &pluginName) const
{
    raise(faults.value(QStringLiteral("isPluginAvailable")));
    return available.contains(pluginName);
}

void FakeCommand::setAttribute(int attribute)
{
    Q_UNUSED(attribute)
}

QMenu *FakeContainer::menu() const
{
    return fakeMenu;
}

void FakeContainer::addAction(Plugin::AppCore::IActionCommand *command, const Core::CId &group)
{
    Q_UNUSED(command)
    groups.append(group.toString());
}

FakeMenuService::FakeMenuService()
    : IMenuService(nullptr)
{
}

FakeMenuService::~FakeMenuService()
{
    qDeleteAll(actions);
}

Plugin::AppCore::IActionCommand *FakeMenuService::registerAction(
    QAction *action, const Core::CId &id, const Core::AppCoreComponents::CContext &context)
{
    raise(faults.value(QStringLiteral("registerAction")));
    Q_UNUSED(context)
    actions.insert(id.toString(), action);
    return &m_command;
}

void FakeMenuService::unregisterAction(QAction *action, const Core::CId &id)
{
    actions.remove(id.toString(), action);
}

Plugin::AppCore::IActionContainer *FakeMenuService::actionContainer(const Core::CId &id) const
{
    raise(faults.value(QStringLiteral("actionContainer")));
    return m_containers.value(id.toString()).get();
}

FakeContainer &FakeMenuService::container(const QString &id)
{
    if (!m_containers.contains(id)) {
        m_containers.insert(id, std::make_shared<FakeContainer>());
    }
    return *m_containers[id];
}

FakeWindowService::FakeWindowService()
    : IWindowService(nullptr)
{
}

bool FakeWindowService::isDockWidgetClosed(const Core::CId &id) const
{
    return !docks.contains(id.toString());
}

void FakeWindowService::setDockWidgetVisible(const Core::CId &id, bool visible)
{
    calls.append(QStringLiteral("visible %1 %2").arg(id.toString()).arg(visible));
}

void FakeWindowService::setDockWidgetTitle(const Core::CId &id, const QString &title)
{
    calls.append(QStringLiteral("title %1 %2").arg(id.toString(), title));
}

void FakeWindowService::addDockWidget(const Core::CId &id, QWidget *widget, int area, bool visible,
                                      bool flag)
{
    raise(faults.value(QStringLiteral("addDockWidget")));
    docks.insert(id.toString(), widget);
    calls.append(QStringLiteral("add %1 \"%2\" %3 %4 %5")
                     .arg(id.toString(), widget->windowTitle())
                     .arg(area)
                     .arg(visible)
                     .arg(flag));
}

void FakeWindowService::removeDockWidget(const Core::CId &id)
{
    calls.append(QStringLiteral("remove %1").arg(id.toString()));
    raise(faults.value(QStringLiteral("removeDockWidget")));
    docks.remove(id.toString());
}

FakeParameterService::FakeParameterService()
    : IParameterService(nullptr)
{
}

QSharedPointer<ParameterCollection::IParameterCollection> FakeParameterService::parameterCollection(
    Core::AppCoreComponents::BaseInfoPtr info)
{
    return collections.value(info);
}

FakeSource::FakeSource(const QString &category)
    : m_category(category)
{
}

QString FakeSource::sourceCategory() const
{
    return m_category;
}

FakeCamera::FakeCamera(const QString &deviceClass, const QString &displayName)
    : m_deviceClass(deviceClass)
    , m_displayName(displayName)
{
}

QString FakeCamera::sourceCategory() const
{
    return QStringLiteral("Device");
}

QString FakeCamera::displayName() const
{
    return m_displayName;
}

QString FakeCamera::modelName() const
{
    return QStringLiteral("Model");
}

QString FakeCamera::deviceClass() const
{
    return m_deviceClass;
}

} // namespace Tests
