// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"

#include <stdexcept>

using namespace ParameterCollection;
using namespace Simulation;

Q_DECLARE_METATYPE(Simulation::FaultKind)

namespace {

/// The kind of what `action` throws.
template<typename Action> QByteArray thrownBy(Action action)
{
    try {
        action();
        return QByteArrayLiteral("nothing");
    } catch (const GenICam::GenericException &) {
        return QByteArrayLiteral("GenICam");
    } catch (const std::runtime_error &) {
        return QByteArrayLiteral("standard library");
    } catch (const Core::Exception::BaseException &) {
        return QByteArrayLiteral("host");
    } catch (int) {
        return QByteArrayLiteral("unknown");
    }
}

} // namespace

/// The switches that make a collection misbehave, and what it still does right then.
class TestFaults : public DeviceTest
{
    Q_OBJECT

private Q_SLOTS:
    void throwsWhatIsAskedFor_data()
    {
        QTest::addColumn<FaultKind>("kind");
        QTest::newRow("GenICam") << FaultKind::GenericException;
        QTest::newRow("standard library") << FaultKind::StdException;
        QTest::newRow("host") << FaultKind::BaseException;
        QTest::newRow("unknown") << FaultKind::Unknown;
    }

    void throwsWhatIsAskedFor()
    {
        QFETCH(const FaultKind, kind);
        const QByteArray thrown = QTest::currentDataTag();
        const QString width = cameraPath("Width");
        m_collection->faults().failWrites(width, kind);
        const SnapshotSpy spy(parameter("Width"));
        QCOMPARE(thrownBy([this] { write("Width", "320"); }), thrown);
        QCOMPARE(memory("Width"), QVariant(640LL));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.text(), QStringLiteral("640"));

        m_collection->faults().failReads(width, kind);
        parameter("Width")->node()->invalidate();
        expectAccessToThrow(thrown);
        QCOMPARE(spy.count(), 1);

        m_collection->faults().clear(width);
        write("Width", "320");
        QCOMPARE(spy.text(), QStringLiteral("320"));
    }

    void publishesAValueOutsideItsLimitsUntilItIsRepaired()
    {
        const SnapshotSpy spy(parameter("Width"));
        m_collection->faults().publishOutsideLimits(cameraPath("Width"), 4);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.snapshot().dynamicCast<const IntegerParameterData>()->value, 4);
        QVERIFY(spy.snapshot()->isWritable);
        write("Width", "16");
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.text(), QStringLiteral("16"));
        QVERIFY(parameter("Width")->isWritable());
    }

    void staysSilentWhileUnplugged()
    {
        const auto width = parameter<IIntegerParameter>("Width");
        const SnapshotSpy spy(width);
        m_collection->setPublication(Publication::Deferred);
        width->refresh(true);
        m_collection->unplug();
        QVERIFY(width->isNull() && !width->isWritable());
        QCOMPARE(thrownBy([&] { width->setValue(320, true); }), QByteArray("GenICam"));
        expectAccessToThrow("GenICam");
        m_collection->poll(300);
        m_collection->endBatchUpdate();
        width->node()->invalidate();
        m_collection->changeOnDevice(cameraPath("Width"), 160);
        QCoreApplication::processEvents();
        QCOMPARE(spy.count(), 0);

        m_collection->revive();
        QVERIFY(!width->isNull());
        QCOMPARE(parameter("Width"), width.staticCast<IParameter>());
        QCOMPARE(width->value(), 160);
        width->setValue(320, true);
        QTRY_VERIFY(spy.count() > 0);
        QTRY_COMPARE(spy.text(), QStringLiteral("320"));
    }

    void outlivesItsCollection()
    {
        const auto width = parameter("Width");
        m_collection.clear();
        QVERIFY(width->isNull());
        QCOMPARE(width->name(), QStringLiteral("Width"));
        QVERIFY_EXCEPTION_THROWN(width->refresh(true), GenICam::GenericException);
    }

private:
    void expectAccessToThrow(const QByteArray &thrown) const
    {
        const auto width = parameter<IIntegerParameter>("Width");
        QCOMPARE(thrownBy([&] { width->value(); }), thrown);
        QCOMPARE(thrownBy([&] { width->parameterData(); }), thrown);
        QCOMPARE(thrownBy([&] { width->refresh(true); }), thrown);
    }
};

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
