// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/plugininfoservice.h"
#include "plugin/services/exceptionbarrier.h"
#include "plugin/services/featuretreecontrolservice.h"
#include "plugin/services/featuretreestatusservice.h"
#include "plugin/services/servicelookup.h"
#include "support/fakehost.h"
#include "support/warningguard.h"

#include <QSignalSpy>
#include <QTest>

using namespace Plugin::Tessera;
using Core::AppCoreComponents::BaseInfoPtr;

class tst_Services : public QObject
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
    void controlServiceTellsWhatTheHostSaid();
    void controlServiceReplaysNothing();
    void findsTheFirstServiceOfAType();
    void barrierTellsTheKindsApart_data();
    void barrierTellsTheKindsApart();

private:
    Tests::WarningGuard m_guard;
};

void tst_Services::controlServiceTellsWhatTheHostSaid()
{
    Internal::CFeatureTreeControlService service(nullptr);
    QSignalSpy registered(&service,
                          &Internal::CFeatureTreeControlService::parameterSourceRegistered);
    QSignalSpy gone(&service, &Internal::CFeatureTreeControlService::parameterSourceUnregistered);
    QSignalSpy active(&service,
                      &Internal::CFeatureTreeControlService::activeParameterSourceChanged);
    QSignalSpy refresh(&service,
                       &Internal::CFeatureTreeControlService::featureTreeRefreshRequested);
    const BaseInfoPtr info(new Tests::FakeSource(QStringLiteral("Device")));

    Plugin::FeatureTree::IFeatureTreeControlService &host = service;
    host.registerParameterSource(info);
    host.setActiveParameterSource(info);
    host.setActiveParameterSource({});
    host.unregisterParameterSource(info);
    host.requestFeatureTreeRefresh();

    QCOMPARE(registered.value(0).value(0).value<BaseInfoPtr>(), info);
    QCOMPARE(gone.value(0).value(0).value<BaseInfoPtr>(), info);
    QCOMPARE(active.value(0).value(0).value<BaseInfoPtr>(), info);
    QVERIFY(!active.value(1).value(0).value<BaseInfoPtr>());
    QCOMPARE(refresh.count(), 1);
}

void tst_Services::controlServiceReplaysNothing()
{
    Internal::CFeatureTreeControlService service(nullptr);
    service.setActiveParameterSource(BaseInfoPtr(new Tests::FakeSource(QStringLiteral("Device"))));
    QSignalSpy active(&service,
                      &Internal::CFeatureTreeControlService::activeParameterSourceChanged);
    QVERIFY(active.isEmpty());
}

void tst_Services::findsTheFirstServiceOfAType()
{
    const auto registry = QSharedPointer<Tests::FakeRegistry>::create();
    const QWeakPointer<Core::Service::IServiceRegistry> weak = registry;
    QVERIFY(!findService<Plugin::AppCore::IMenuService>(weak));

    const auto first = QSharedPointer<Tests::FakeMenuService>::create();
    registry->registerService(QSharedPointer<Tests::FakePluginInfoService>::create());
    registry->registerService(first);
    registry->registerService(QSharedPointer<Tests::FakeMenuService>::create());
    QCOMPARE(findService<Plugin::AppCore::IMenuService>(weak).data(), first.data());
    QVERIFY(!findService<Plugin::AppCore::IWindowService>(weak));
    QVERIFY(registry->lock()->tryLockForWrite());
    registry->lock()->unlock();

    QVERIFY(!findService<Plugin::AppCore::IMenuService>({}));
}

void tst_Services::barrierTellsTheKindsApart_data()
{
    Tests::addFaultRows();
    QTest::newRow("none") << Tests::Fault::None;
}

void tst_Services::barrierTellsTheKindsApart()
{
    QFETCH(Tests::Fault, fault);
    const QMap<Tests::Fault, ExceptionKind> kinds {
        {Tests::Fault::GenICam, ExceptionKind::GenICam},
        {Tests::Fault::Standard, ExceptionKind::Standard},
        {Tests::Fault::Host, ExceptionKind::Host},
        {Tests::Fault::Unknown, ExceptionKind::Unknown},
    };
    CaughtException caught;
    int handled = 0;
    const bool completed = runGuarded([&] { Tests::raise(fault); },
                                      [&](const CaughtException &e) {
                                          caught = e;
                                          ++handled;
                                      });
    QCOMPARE(completed, fault == Tests::Fault::None);
    QCOMPARE(handled, completed ? 0 : 1);
    QVERIFY(completed || caught.kind == kinds.value(fault));
    QCOMPARE(caught.message,
             caught.kind == ExceptionKind::Unknown ? QString() : QStringLiteral("fault"));
}

QTEST_GUILESS_MAIN(tst_Services)
#include "tst_services.moc"
