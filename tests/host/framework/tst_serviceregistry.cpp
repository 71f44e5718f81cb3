// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/camerarecord.h"
#include "host/framework/findservice.h"
#include "host/framework/parameterpool.h"
#include "host/framework/plugincatalogue.h"
#include "host/framework/serviceregistry.h"
#include "host/framework/sourcerecord.h"
#include "support/fakecollection.h"
#include "support/warningguard.h"

#include <QTest>

using Core::AppCoreComponents::BaseInfoPtr;
using Core::CameraPoolComponents::ICameraInfo;
using Core::CameraPoolComponents::IDeviceBaseInfo;
using Core::Plugin::IPluginInfoService;
using Core::Service::IService;
using Core::Service::IServiceRegistry;
using ParameterCollection::IParameterCollection;
using Plugin::ParameterCollectionPool::IParameterService;

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
        const QSharedPointer<IService> catalogue(new Host::PluginCatalogue);
        const QSharedPointer<IService> first(new Host::ParameterPool);
        const QSharedPointer<IService> second(new Host::ParameterPool);
        for (const QSharedPointer<IService> &service : {catalogue, first, second, first, {}}) {
            registry->registerService(service);
        }
        QCOMPARE(registry->services(), QList<QSharedPointer<IService>>({catalogue, first, second}));
        QCOMPARE(Host::findService<IParameterService>(registry).data(), first.data());
        QCOMPARE(Host::findService<IPluginInfoService>(registry).data(), catalogue.data());
        registry->unregisterService(first);
        registry->unregisterService({});
        QCOMPARE(Host::findService<IParameterService>(registry).data(), second.data());
        QVERIFY(registry->lock()->tryLockForWrite()); // free after each use
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
        const QSharedPointer<IParameterCollection> collection(new Tests::FakeCollection);
        pool.insert(camera, collection);
        QCOMPARE(pool.parameterCollection(camera).data(), collection.data());
        QVERIFY(!pool.parameterCollection(other));
        QVERIFY(!pool.parameterCollection({}));
        pool.remove(other);
        QVERIFY(pool.parameterCollection(camera));
        pool.remove(camera);
        QVERIFY(!pool.parameterCollection(camera));
    }

    void onlyACameraRecordIsADeviceAndACamera()
    {
        const BaseInfoPtr record(new Host::CameraRecord(
            QStringLiteral("Left"), QStringLiteral("S-1"), QStringLiteral("GEV")));
        QCOMPARE(record->sourceCategory(), QStringLiteral("Device"));
        const auto device = record.objectCast<IDeviceBaseInfo>();
        QVERIFY(device);
        QCOMPARE(device->displayName(), QStringLiteral("Left"));
        QCOMPARE(device->modelName(), QStringLiteral("S-1"));
        QCOMPARE(record.objectCast<ICameraInfo>()->deviceClass(), QStringLiteral("GEV"));
        const BaseInfoPtr block(new Host::SourceRecord(QStringLiteral("Workbench")));
        QCOMPARE(block->sourceCategory(), QStringLiteral("Workbench"));
        QVERIFY(!block.objectCast<IDeviceBaseInfo>());
    }

private:
    Tests::WarningGuard m_guard;
};

QTEST_GUILESS_MAIN(TestServiceRegistry)
#include "tst_serviceregistry.moc"
