// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/parameternode.h"

#include <QThread>

using namespace ParameterCollection;
using namespace Simulation;

/// When snapshots are published, which ones, in which order, and to whom.
class TestPublication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_collection = openTestDevice();
    }

    void refreshPublishesAlwaysOnlyWhenForced()
    {
        const auto width = parameter("Width");
        QCOMPARE(width->parameterData()->valueText, QStringLiteral("640"));
        SnapshotSpy spy(width);
        width->refresh(false);
        QCOMPARE(spy.count(), 0);
        width->refresh(true);
        width->refresh(true);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.snapshot(), width->parameterData());

        m_collection->changeOnDevice(cameraPath("Width"), 320);
        width->refresh(false);
        QCOMPARE(spy.count(), 3);
        QCOMPARE(spy.text(), QStringLiteral("320"));
        QCOMPARE(m_collection->counters().of(cameraPath("Width")).refreshes, 4);
    }

    void readsAgainWhatWasInvalidated()
    {
        const auto temperature = parameter("Temperature");
        QCOMPARE(temperature->parameterData()->valueText, QStringLiteral("40.0"));
        m_collection->changeOnDevice(cameraPath("Temperature"), 41.5);
        QCOMPARE(temperature->parameterData()->valueText, QStringLiteral("40.0"));
        temperature->node()->invalidate();
        QCOMPARE(temperature->parameterData()->valueText, QStringLiteral("41.5"));

        SnapshotSpy spy(temperature);
        temperature->node()->invalidate();
        QCOMPARE(spy.count(), 1);
    }

    void bringsEverythingUpToDateAfterABatch()
    {
        const auto temperature = parameter("Temperature");
        const auto width = parameter("Width");
        SnapshotSpy temperatureSpy(temperature);
        SnapshotSpy widthSpy(width);
        temperature->refresh(true);
        width->refresh(true);
        m_collection->changeOnDevice(cameraPath("Temperature"), 42);
        m_collection->endBatchUpdate();
        QCOMPARE(temperatureSpy.count(), 2);
        QCOMPARE(temperatureSpy.text(), QStringLiteral("42.0"));
        QCOMPARE(widthSpy.count(), 1);
    }

    void showsPolledFeaturesByPollingOnly()
    {
        const auto temperature = parameter("Temperature");
        SnapshotSpy spy(temperature);
        SnapshotSpy other(parameter("Width"));
        temperature->refresh(true);
        m_collection->changeOnDevice(cameraPath("Temperature"), 43);
        m_collection->changeOnDevice(cameraPath("Width"), 320);
        QTRY_COMPARE(other.count(), 1);
        QCOMPARE(spy.count(), 1);
        m_collection->poll(300);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.text(), QStringLiteral("43.0"));
        m_collection->poll(300);
        QCOMPARE(spy.count(), 2);
    }

    void reportsChangesOfTheCameraOnceThroughTheEventLoop()
    {
        const auto width = parameter("Width");
        SnapshotSpy spy(width);
        const auto *const guiThread = QThread::currentThread();
        connect(
            width.data(), &IParameter::parameterDataChangedDecoupled, this,
            [guiThread] { QCOMPARE(QThread::currentThread(), guiThread); }, Qt::DirectConnection);
        for (int value = 100; value <= 500; value += 4)
            m_collection->changeOnDevice(cameraPath("Width"), value);
        QCOMPARE(spy.count(), 0);
        QTRY_VERIFY(spy.count() > 0 && spy.text() == QLatin1String("500"));
        // The device's thread may have looked once while the changes were under way.
        QVERIFY2(spy.count() >= 1 && spy.count() <= 3, qPrintable(QString::number(spy.count())));
    }

    void reportsWhatHangsOnAChangeOfTheCamera()
    {
        const auto width = parameter("Width");
        SnapshotSpy spy(width);
        QVERIFY(width->isWritable());
        m_collection->changeOnDevice(cameraPath("TLParamsLocked"), 1);
        QTRY_COMPARE(spy.count(), 1);
        QVERIFY(!spy.snapshot()->isWritable);
        QVERIFY(!width->isWritable());
    }

    void publishesNothingThatNobodyListensTo()
    {
        const auto width = parameter("Width");
        const auto offset = parameter("OffsetX");
        offset->parameterData();
        width->refresh(true);
        width->setFromString(QStringLiteral("320"));
        m_collection->endBatchUpdate();
        QCOMPARE(m_collection->counters().total().publications, 0);
        QCOMPARE(m_collection->counters().of(cameraPath("OffsetX")).reads, 1);

        SnapshotSpy spy(width);
        QCOMPARE(m_collection->counters().of(cameraPath("Width")).subscriptions, 1);
        width->refresh(true);
        QCOMPARE(m_collection->counters().of(cameraPath("Width")).publications, 1);
    }

    void publishesAWriteAndItsDependantsBeforeItReturns()
    {
        const auto width = parameter("Width").objectCast<IIntegerParameter>();
        SnapshotSpy widthSpy(width);
        SnapshotSpy offsetSpy(parameter("OffsetX"));
        SnapshotSpy strangerSpy(parameter("FrameCount"));
        width->setValue(1000, true);
        QCOMPARE(m_collection->deviceValue(cameraPath("Width")), QVariant(1000LL));
        QCOMPARE(widthSpy.count(), 1);
        QCOMPARE(widthSpy.text(), QStringLiteral("1000"));
        QCOMPARE(offsetSpy.count(), 1);
        QCOMPARE(offsetSpy.snapshot().dynamicCast<const IntegerParameterData>()->maximum, 24);
        QCOMPARE(strangerSpy.count(), 0);
    }

    void publishesWhatHangsOnASelectedFeature()
    {
        const auto filter = parameter("InputFilter");
        SnapshotSpy spy(filter);
        parameter("LineSelector")->setFromString(QStringLiteral("Line2"));
        QCOMPARE(spy.count(), 1);
        QVERIFY(!filter->parameterData()->isWritable);
    }

    void publishesAChangeThatWasMissedByAFault()
    {
        const auto width = parameter("Width");
        QVERIFY(width->parameterData());
        SnapshotSpy spy(width);
        m_collection->faults().failReads(cameraPath("Width"), FaultKind::StdException);
        m_collection->changeOnDevice(cameraPath("Width"), 320);
        m_collection->endBatchUpdate();
        m_collection->faults().clearAll();
        QVERIFY(width->isWritable()); // reads it again, in silence
        m_collection->endBatchUpdate();
        QCOMPARE(spy.text(), QStringLiteral("320"));
    }

    void publishesTheAliasBeforeItsFloat_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("text");
        QTest::newRow("float") << cameraPath("Gain") << "10";
        QTest::newRow("alias") << cameraPath("Gain/Alias") << "1000";
    }

    void publishesTheAliasBeforeItsFloat()
    {
        QFETCH(const QString, written);
        QFETCH(const QString, text);
        QStringList order;
        for (const char *name : {"Gain", "Gain/Alias"}) {
            const auto listened = parameter(name);
            connect(listened.data(), &IParameter::parameterDataChangedDecoupled, this,
                    [&order, listened](const auto &data) {
                        order.append(listened->name() + QLatin1Char('=') + data->valueText);
                    });
        }
        m_collection->parameter(written)->setFromString(text);
        QCOMPARE(order, QStringList({QStringLiteral("Alias=1000"), QStringLiteral("Gain=10.000")}));
        disconnect(parameter("Gain").data(), nullptr, this, nullptr);
        disconnect(parameter("Gain/Alias").data(), nullptr, this, nullptr);
    }

    void publishesOneFinalSnapshotWhenAReceiverWrites()
    {
        const auto width = parameter("Width").objectCast<IIntegerParameter>();
        const auto offset = parameter("OffsetX").objectCast<IIntegerParameter>();
        QStringList seen;
        connect(width.data(), &IParameter::parameterDataChangedDecoupled, this, [&offset] {
            if (offset->value() == 0)
                offset->setValue(8, true);
        });
        connect(offset.data(), &IParameter::parameterDataChangedDecoupled, this,
                [&seen](const auto &data) { seen.append(data->valueText); });
        width->setValue(320, true);
        QCOMPARE(seen, QStringList({QStringLiteral("8")}));
        disconnect(width.data(), nullptr, this, nullptr);
        disconnect(offset.data(), nullptr, this, nullptr);
    }

    void publishesTheOldValueAfterARefusedWrite_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *tag, const char *name, const char *text) {
            QTest::newRow(tag) << name << text;
        };
        row("too large", "Width", "100000");
        row("too small", "Width", "0");
        row("between two steps", "Width", "641");
        row("no number", "Width", "wide");
        row("nothing", "Width", "");
        row("float too large", "ExposureTime", "1e9");
        row("no finite float", "ExposureTime", "nan");
        row("empty float", "ExposureTime", "");
        row("empty write-only float", "Setpoint", "");
        row("unknown entry", "PixelFormat", "Mono7");
        row("entry that is not available", "PixelFormat", "Mono12");
        row("neither on nor off", "HighBitDepth", "yes");
        row("text too long", "UserName", "seventeen letters");
        row("read only", "FrameCount", "3");
        row("not available", "Gone", "3");
        row("command", "Stop", "2");
    }

    void publishesTheOldValueAfterARefusedWrite()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, text);
        const QString path = cameraPath(name.toLatin1().constData());
        const auto target = m_collection->parameter(path);
        const QVariant before = m_collection->deviceValue(path);
        const QString shown = target->parameterData()->valueText;
        SnapshotSpy spy(target);
        QVERIFY(throws<GenICam::GenericException>([&] { target->setFromString(text); }));
        QCOMPARE(m_collection->deviceValue(path), before);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.text(), shown);
    }

    void defersEveryPublication_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("write") << "write";
        QTest::newRow("refused write") << "refused";
        QTest::newRow("refresh") << "refresh";
        QTest::newRow("invalidate") << "invalidate";
    }

    void defersEveryPublication()
    {
        QFETCH(const QString, action);
        m_collection->setPublication(Publication::Deferred);
        const auto width = parameter("Width");
        SnapshotSpy spy(width);
        if (action == QLatin1String("write"))
            width->setFromString(QStringLiteral("320"));
        else if (action == QLatin1String("refused"))
            QVERIFY(throws<GenICam::GenericException>([&] { width->setFromString(QString()); }));
        else if (action == QLatin1String("refresh"))
            width->refresh(true);
        else
            width->node()->invalidate();
        QCOMPARE(spy.count(), 0);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.snapshot(), width->parameterData());
    }

    void keepsTheOrderWhenDeferred()
    {
        m_collection->setPublication(Publication::Deferred);
        const auto width = parameter("Width");
        SnapshotSpy spy(width);
        width->setFromString(QStringLiteral("320"));
        width->setFromString(QStringLiteral("160"));
        m_collection->setPublication(Publication::Immediate);
        width->setFromString(QStringLiteral("80"));
        QTRY_COMPARE(spy.count(), 3);
        QCOMPARE(spy.text(), QStringLiteral("80"));
    }

    void doesNotPublishUnaskedWhatIsNotImplemented()
    {
        const auto never = parameter("Never");
        SnapshotSpy spy(never);
        QVERIFY(!never->isImplemented());
        QVERIFY(!never->parameterData()->isReadable);
        QVERIFY(!never->parameterData()->isWritable);
        never->node()->invalidate();
        m_collection->endBatchUpdate();
        m_collection->changeOnDevice(cameraPath("Never"), 1);
        never->refresh(false);
        QCOMPARE(spy.count(), 0);
        never->refresh(true);
        QCOMPARE(spy.count(), 1);
    }

    void tellsWhenACommandIsDone()
    {
        const auto slow = parameter("Slow").objectCast<ICommandParameter>();
        SnapshotSpy spy(slow);
        SnapshotSpy lockSpy(parameter("TLParamsLocked"));
        const auto isDone = [](const auto &data) {
            return data.template dynamicCast<const CommandParameterData>()->isDone;
        };
        QVERIFY(isDone(slow->parameterData()));
        slow->execute(true);
        QCOMPARE(spy.count(), 1);
        QVERIFY(!isDone(spy.snapshot()));
        QCOMPARE(lockSpy.count(), 0);
        QTRY_COMPARE(spy.count(), 2);
        QVERIFY(isDone(spy.snapshot()));
        QVERIFY(spy.text() != QLatin1String("1"));
        QTRY_COMPARE(lockSpy.count(), 1);
        QCOMPARE(lockSpy.text(), QStringLiteral("1"));
    }

    void staysSilentWhileUnplugged()
    {
        const auto width = parameter("Width").objectCast<IIntegerParameter>();
        SnapshotSpy spy(width);
        m_collection->setPublication(Publication::Deferred);
        width->refresh(true);
        m_collection->unplug();
        QVERIFY(width->isNull());
        QVERIFY(!width->isWritable());
        QVERIFY(throws<GenICam::GenericException>([&] { width->setValue(320, true); }));
        QVERIFY(throws<GenICam::GenericException>([&] { width->value(); }));
        QVERIFY(throws<GenICam::GenericException>([&] { width->parameterData(); }));
        QVERIFY(throws<GenICam::GenericException>([&] { width->refresh(true); }));
        m_collection->poll(300);
        m_collection->endBatchUpdate();
        width->node()->invalidate();
        m_collection->changeOnDevice(cameraPath("Width"), 160);
        QCoreApplication::processEvents();
        QCOMPARE(spy.count(), 0);

        m_collection->revive();
        QVERIFY(!width->isNull());
        QCOMPARE(m_collection->parameter(cameraPath("Width")), width.staticCast<IParameter>());
        QCOMPARE(width->value(), 160);
        width->setValue(320, true);
        QTRY_COMPARE(spy.count(), 1);
    }

    void outlivesItsCollection()
    {
        const auto width = parameter("Width");
        m_collection.clear();
        QVERIFY(width->isNull());
        QCOMPARE(width->name(), QStringLiteral("Width"));
        QVERIFY(throws<GenICam::GenericException>([&] { width->refresh(true); }));
    }

private:
    QSharedPointer<IParameter> parameter(const char *name)
    {
        return m_collection->parameter(cameraPath(name));
    }

    QSharedPointer<SimulatedCollection> m_collection;
};

QTEST_GUILESS_MAIN(TestPublication)
#include "tst_publication.moc"
