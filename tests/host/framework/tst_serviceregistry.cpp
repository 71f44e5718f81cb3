// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/camerarecord.h"
#include "host/framework/findservice.h"
#include "host/framework/parameterpool.h"
#include "host/framework/plugincatalogue.h"
#include "host/framework/serviceregistry.h"
#include "host/framework/sourcerecord.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "support/warningguard.h"

#include <QPointer>
#include <QTest>

using Core::AppCoreComponents::BaseInfoPtr;
using Core::CameraPoolComponents::ICameraInfo;
using Core::CameraPoolComponents::IDeviceBaseInfo;
using Core::Plugin::IPluginInfoService;
using Core::Service::IService;
using Core::Service::IServiceRegistry;
using ParameterCollection::IParameterCollection;
using Plugin::ParameterCollectionPool::IParameterService;

namespace {

// A collection without parameters.
class EmptyCollection final : public IParameterCollection
{
    Q_OBJECT

public:
    QSharedPointer<ParameterCollection::IParameter> parameter(const QString &) override
    {
        return {};
    }
    bool contains(const QString &) const override
    {
        return false;
    }
    QStringList attachedParameterPaths() const override
    {
        return {};
    }
    QStringList children(const QString &, int, bool) const override
    {
        return {};
    }
    void endBatchUpdate() override
    {
    }
    void poll(int) override
    {
    }
};

} // namespace

class TestServiceRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void findsServicesByTheirType()
    {
        const QSharedPointer<IServiceRegistry> registry(new Host::ServiceRegistry);
        QVERIFY(!Host::findService<IParameterService>(registry));
        QVERIFY(!Host::findService<IParameterService>({}));
        const QSharedPointer<Host::ParameterPool> first(new Host::ParameterPool);
        registry->registerService(QSharedPointer<Host::PluginCatalogue>::create());
        registry->registerService(first);
        registry->registerService(QSharedPointer<Host::ParameterPool>::create());
        QCOMPARE(Host::findService<IParameterService>(registry).data(), first.data());
        QVERIFY(Host::findService<IPluginInfoService>(registry));
        registry->unregisterService(first);
        QVERIFY(Host::findService<IParameterService>(registry).data() != first.data());
        QCOMPARE(registry->services().size(), 2);
    }

    void keepsEachServiceOnceAndInOrder()
    {
        Host::ServiceRegistry registry;
        const QSharedPointer<IService> pool(new Host::ParameterPool);
        const QSharedPointer<IService> catalogue(new Host::PluginCatalogue);
        for (const QSharedPointer<IService> &service : {pool, catalogue, pool, {}}) {
            registry.registerService(service);
        }
        QCOMPARE(registry.services(), QList<QSharedPointer<IService>>({pool, catalogue}));
    }

    void lockIsFreeAfterEachUse()
    {
        const QSharedPointer<Host::ServiceRegistry> registry(new Host::ServiceRegistry);
        registry->registerService(QSharedPointer<Host::ParameterPool>::create());
        Host::findService<IParameterService>(registry);
        registry->unregisterService({});
        QVERIFY(registry->lock()->tryLockForWrite());
        registry->lock()->unlock();
    }

    void clearDeletesTheNewestFirstWithTheLockFree()
    {
        Host::ServiceRegistry registry;
        QStringList order;
        for (const QString &name : {QStringLiteral("first"), QStringLiteral("second")}) {
            const QSharedPointer<IService> service(new Host::ParameterPool);
            registry.registerService(service);
            connect(service.data(), &QObject::destroyed, this, [&registry, &order, name] {
                order.append(name);
                QVERIFY(registry.lock()->tryLockForRead());
                registry.lock()->unlock();
            });
        }
        registry.clear();
        QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("second first"));
    }

    void poolGivesTheSameCollectionUntilItIsTakenOut()
    {
        Host::ParameterPool pool;
        const BaseInfoPtr camera(new Host::SourceRecord(QStringLiteral("Device")));
        const BaseInfoPtr other(new Host::SourceRecord(QStringLiteral("Device")));
        const QSharedPointer<IParameterCollection> collection(new EmptyCollection);
        pool.insert(camera, collection);
        QCOMPARE(pool.parameterCollection(camera).data(), collection.data());
        QCOMPARE(pool.parameterCollection(camera).data(), collection.data());
        QVERIFY(!pool.parameterCollection(other));
        QVERIFY(!pool.parameterCollection({}));
        pool.remove(other);
        QVERIFY(pool.parameterCollection(camera));
        pool.remove(camera);
        QVERIFY(!pool.parameterCollection(camera));
    }

    void cameraRecordIsADeviceAndACamera()
    {
        const BaseInfoPtr record(new Host::CameraRecord(
            QStringLiteral("Left"), QStringLiteral("S-1"), QStringLiteral("GEV")));
        QCOMPARE(record->sourceCategory(), QStringLiteral("Device"));
        const auto device = record.objectCast<IDeviceBaseInfo>();
        QVERIFY(device);
        QCOMPARE(device->displayName(), QStringLiteral("Left"));
        QCOMPARE(device->modelName(), QStringLiteral("S-1"));
        QCOMPARE(record.objectCast<ICameraInfo>()->deviceClass(), QStringLiteral("GEV"));
    }

    void otherRecordsAreNoDevices_data()
    {
        QTest::addColumn<QString>("category");
        QTest::newRow("block") << QStringLiteral("Workbench");
        QTest::newRow("anything else") << QStringLiteral("Robot");
    }

    void otherRecordsAreNoDevices()
    {
        QFETCH(QString, category);
        const BaseInfoPtr record(new Host::SourceRecord(category));
        QCOMPARE(record->sourceCategory(), category);
        QVERIFY(!record.objectCast<IDeviceBaseInfo>());
        QVERIFY(!record.objectCast<ICameraInfo>());
    }

private:
    Tests::WarningGuard m_guard;
};

QTEST_GUILESS_MAIN(TestServiceRegistry)
#include "tst_serviceregistry.moc"
