// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/parameternode.h"

#include <QElapsedTimer>

#include <stdexcept>

using namespace ParameterCollection;
using namespace Simulation;

Q_DECLARE_METATYPE(Simulation::FaultKind)

namespace {

/// The kind of what `action` throws; 0 where it throws nothing.
template<typename Action> QByteArray thrownBy(Action action)
{
    try {
        action();
        return QByteArrayLiteral("nothing");
    } catch (const GenICam::GenericException &) {
        return QByteArrayLiteral("GenericException");
    } catch (const std::runtime_error &) {
        return QByteArrayLiteral("std");
    } catch (const Core::Exception::BaseException &) {
        return QByteArrayLiteral("BaseException");
    } catch (int) {
        return QByteArrayLiteral("int");
    }
}

} // namespace

/// The switches that make a collection misbehave, and what it still does right then.
class TestFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_collection = openTestDevice();
        m_width = m_collection->parameter(cameraPath("Width")).objectCast<IIntegerParameter>();
    }

    void throwsWhatIsAskedFor_data()
    {
        QTest::addColumn<FaultKind>("kind");
        QTest::addColumn<QByteArray>("thrown");
        QTest::newRow("GenICam") << FaultKind::GenericException << QByteArray("GenericException");
        QTest::newRow("standard library") << FaultKind::StdException << QByteArray("std");
        QTest::newRow("host") << FaultKind::BaseException << QByteArray("BaseException");
        QTest::newRow("unknown") << FaultKind::Unknown << QByteArray("int");
    }

    void throwsWhatIsAskedFor()
    {
        QFETCH(const FaultKind, kind);
        QFETCH(const QByteArray, thrown);
        m_collection->faults().failWrites(m_width->fullName(), kind);
        SnapshotSpy spy(m_width);
        QCOMPARE(thrownBy([this] { m_width->setValue(320, true); }), thrown);
        QCOMPARE(thrownBy([this] { m_width->setFromString(QStringLiteral("320")); }), thrown);
        QCOMPARE(m_collection->deviceValue(m_width->fullName()), QVariant(640LL));
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.text(), QStringLiteral("640"));

        m_collection->faults().failReads(m_width->fullName(), kind);
        QCOMPARE(thrownBy([this] { m_width->refresh(true); }), thrown);
        m_width->node()->invalidate();
        QCOMPARE(thrownBy([this] { m_width->value(); }), thrown);
        QCOMPARE(thrownBy([this] { m_width->parameterData(); }), thrown);
        QCOMPARE(spy.count(), 2);

        m_collection->faults().clear(m_width->fullName());
        m_width->setValue(320, true);
        QCOMPARE(spy.text(), QStringLiteral("320"));
    }

    void passesOverAFeatureThatCannotBeRead()
    {
        const auto offset = m_collection->parameter(cameraPath("OffsetX"));
        m_collection->faults().failReads(offset->fullName(), FaultKind::Unknown);
        SnapshotSpy widthSpy(m_width);
        SnapshotSpy offsetSpy(offset);
        m_width->setValue(320, true);
        m_collection->endBatchUpdate();
        m_collection->poll(300);
        QCOMPARE(widthSpy.count(), 1);
        QCOMPARE(offsetSpy.count(), 0);
    }

    void publishesAValueOutsideItsLimitsUntilItIsRepaired()
    {
        SnapshotSpy spy(m_width);
        m_collection->faults().publishOutsideLimits(m_width->fullName(), 4);
        QCOMPARE(spy.count(), 1);
        const auto data = spy.snapshot().dynamicCast<const IntegerParameterData>();
        QCOMPARE(data->value, 4);
        QCOMPARE(data->minimum, 16);
        QVERIFY(data->isWritable);
        QCOMPARE(m_width->value(), 4);

        m_width->setValue(data->minimum, true);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.text(), QStringLiteral("16"));
        QVERIFY(m_width->isWritable());
    }

    void slowsDownEveryAccess()
    {
        m_collection->faults().setDelay(20);
        QElapsedTimer timer;
        timer.start();
        m_width->refresh(true);
        QVERIFY(timer.elapsed() >= 20);
        m_width->setValue(320, true);
        QVERIFY(timer.elapsed() >= 40);
    }

    void endsAllFaults()
    {
        Faults &faults = m_collection->faults();
        SnapshotSpy spy(m_width);
        faults.failReads(cameraPath("OffsetX"), FaultKind::StdException);
        faults.failWrites(m_width->fullName(), FaultKind::StdException);
        faults.publishOutsideLimits(m_width->fullName(), 9999);
        faults.clearAll();
        QCOMPARE(spy.text(), QStringLiteral("640"));
        m_width->setValue(320, true);
        QCOMPARE(
            thrownBy([this] { m_collection->parameter(cameraPath("OffsetX"))->refresh(true); }),
            QByteArray("nothing"));
    }

private:
    QSharedPointer<SimulatedCollection> m_collection;
    QSharedPointer<IIntegerParameter> m_width;
};

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
