// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/actioncommand.h"
#include "plugin/contract/appcore/actioncontainer.h"
#include "plugin/contract/appcore/menuservice.h"
#include "plugin/contract/appcore/windowservice.h"
#include "plugin/contract/core/plugininfoservice.h"
#include "plugin/contract/core/serviceregistry.h"
#include "plugin/contract/viewer/camerainfo.h"
#include "plugin/contract/viewer/parameterservice.h"
#include "support/fakefault.h"

#include <QAction>
#include <QHash>
#include <QMap>
#include <QMenu>
#include <QPointer>
#include <QReadWriteLock>
#include <QStringList>

#include <memory>
#include <vector>

namespace ParameterCollection {
class IParameterCollection;
}

namespace Tests {

/// Throws where the test asks for it, by the name of the host's function.
using Faults = QHash<QString, Fault>;

class FakeRegistry final : public Core::Service::IServiceRegistry
{
    Q_OBJECT

public:
    void registerService(QSharedPointer<Core::Service::IService> service) override;
    QList<QSharedPointer<Core::Service::IService>> services() const override;
    QReadWriteLock *lock() const override;

    Faults faults;

private:
    QList<QSharedPointer<Core::Service::IService>> m_services;
    mutable QReadWriteLock m_lock;
};

class FakePluginInfoService final : public Core::Plugin::IPluginInfoService
{
    Q_OBJECT

public:
    FakePluginInfoService();
    bool isPluginAvailable(const QString &pluginName) const override;

    Faults faults;
    QStringList available;
};

class FakeCommand final : public Plugin::AppCore::IActionCommand
{
public:
    void setAttribute(int attribute) override;
};

class FakeContainer final : public Plugin::AppCore::IActionContainer
{
public:
    QMenu *menu() const override;
    void addAction(Plugin::AppCore::IActionCommand *command, const Core::CId &group) override;

    QMenu *fakeMenu = nullptr; // borrowed
    QStringList groups; ///< of the commands that were added
};

/// Records the actions and deletes them at its end, like the host.
class FakeMenuService final : public Plugin::AppCore::IMenuService
{
    Q_OBJECT

public:
    FakeMenuService();
    ~FakeMenuService() override;

    Plugin::AppCore::IActionCommand *registerAction(
        QAction *action, const Core::CId &id,
        const Core::AppCoreComponents::CContext &context) override;
    void unregisterAction(QAction *action, const Core::CId &id) override;
    Plugin::AppCore::IActionContainer *actionContainer(const Core::CId &id) const override;

    FakeContainer &container(const QString &id);

    Faults faults;
    QMultiMap<QString, QPointer<QAction>> actions; ///< by id

private:
    FakeCommand m_command;
    QMap<QString, std::shared_ptr<FakeContainer>> m_containers;
};

class FakeWindowService final : public Plugin::AppCore::IWindowService
{
    Q_OBJECT

public:
    FakeWindowService();

    bool isDockWidgetClosed(const Core::CId &id) const override;
    void setDockWidgetVisible(const Core::CId &id, bool visible) override;
    void setDockWidgetTitle(const Core::CId &id, const QString &title) override;
    void addDockWidget(const Core::CId &id, QWidget *widget, int area, bool visible,
                       bool flag) override;
    void removeDockWidget(const Core::CId &id) override;

    Faults faults;
    QMap<QString, QPointer<QWidget>> docks; ///< by id
    QStringList calls;
};

class FakeParameterService final : public Plugin::ParameterCollectionPool::IParameterService
{
    Q_OBJECT

public:
    FakeParameterService();
    QSharedPointer<ParameterCollection::IParameterCollection> parameterCollection(
        Core::AppCoreComponents::BaseInfoPtr info) override;

    QMap<Core::AppCoreComponents::BaseInfoPtr,
         QSharedPointer<ParameterCollection::IParameterCollection>>
        collections;
};

/// A source that is no camera.
class FakeSource final : public Core::AppCoreComponents::IBaseInfo
{
    Q_OBJECT

public:
    explicit FakeSource(const QString &category);
    QString sourceCategory() const override;

private:
    QString m_category;
};

class FakeCamera final : public Core::CameraPoolComponents::ICameraInfo
{
    Q_OBJECT

public:
    FakeCamera(const QString &deviceClass, const QString &displayName);
    QString sourceCategory() const override;
    QString displayName() const override;
    QString modelName() const override;
    QString deviceClass() const override;

private:
    QString m_deviceClass;
    QString m_displayName;
};

} // namespace Tests
