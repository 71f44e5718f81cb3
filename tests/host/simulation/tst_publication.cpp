// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"

#include <QThread>

using namespace ParameterCollection;
using namespace Simulation;

/// When snapshots are published, which ones, in which order, and to whom.
class TestPublication : public DeviceTest
{
    Q_OBJECT

private Q_SLOTS:
    void refreshPublishesAlwaysOnlyWhenForced()
    {
        QCOMPARE(data("Width")->valueText, QStringLiteral("640"));
        const SnapshotSpy spy(parameter("Width"));
        parameter("Width")->refresh(false);
        QCOMPARE(spy.count(), 0);
        parameter("Width")->refresh(true);
        parameter("Width")->refresh(true);
        QCOMPARE(spy.count(), 2);
        m_collection->changeOnDevice(cameraPath("Width"), 320);
        parameter("Width")->refresh(false);
        QCOMPARE(spy.count(), 3);
        QCOMPARE(spy.text(), QStringLiteral("320"));
        QCOMPARE(spy.snapshot(), data("Width"));
        QCOMPARE(m_collection->counters().of(cameraPath("Width")).refreshes, 4);
    }

    void seesAnUnreportedChangeWhenAsked_data()
    {
        QTest::addColumn<int>("publications");
        QTest::newRow("poll") << 2;
        QTest::newRow("batch") << 2;
        QTest::newRow("invalidate") << 3; // whether changed or not
    }

    void seesAnUnreportedChangeWhenAsked()
    {
        const QByteArray action = QTest::currentDataTag();
        const SnapshotSpy reported(parameter("Width"));
        const SnapshotSpy spy(parameter("Temperature"));
        parameter("Temperature")->refresh(true);
        m_collection->changeOnDevice(cameraPath("Temperature"), 43);
        m_collection->changeOnDevice(cameraPath("Width"), 320);
        QTRY_COMPARE(reported.count(), 1);
        QCOMPARE(data("Temperature")->valueText, QStringLiteral("40.0"));
        QCOMPARE(spy.count(), 1);
        ask(action);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.text(), QStringLiteral("43.0"));
        ask(action);
        QTEST(spy.count(), "publications");
    }

    void reportsChangesOfTheCameraOnceThroughTheEventLoop()
    {
        const SnapshotSpy spy(parameter("Width"));
        const auto *const guiThread = QThread::currentThread();
        connect(
            parameter("Width").data(), &IParameter::parameterDataChangedDecoupled, this,
            [guiThread] { QCOMPARE(QThread::currentThread(), guiThread); }, Qt::DirectConnection);
        for (int value = 100; value <= 500; value += 4)
            m_collection->changeOnDevice(cameraPath("Width"), value);
        m_collection->changeOnDevice(cameraPath("TLParamsLocked"), 1); // hangs on that
        QCOMPARE(spy.count(), 0);
        QTRY_VERIFY(spy.count() > 0 && spy.text() == QLatin1String("500"));
        QTRY_VERIFY(!spy.snapshot()->isWritable);
        QVERIFY(!parameter("Width")->isWritable());
        // The device's thread may have looked once while the changes were under way.
        QVERIFY(spy.count() <= 4);
    }

    void publishesAWriteAndItsDependantsBeforeItReturns()
    {
        const SnapshotSpy width(parameter("Width"));
        const SnapshotSpy offset(parameter("OffsetX"));
        const SnapshotSpy stranger(parameter("FrameCount"));
        write("Width", "1000");
        QCOMPARE(memory("Width"), QVariant(1000LL));
        QCOMPARE(width.count(), 1);
        QCOMPARE(width.text(), QStringLiteral("1000"));
        QCOMPARE(offset.count(), 1);
        QCOMPARE(offset.snapshot().dynamicCast<const IntegerParameterData>()->maximum, 24);
        QCOMPARE(stranger.count(), 0);
    }

    void publishesTheAliasBeforeItsFloat_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("Gain") << "10";
        QTest::newRow("Gain/Alias") << "1000";
    }

    void publishesTheAliasBeforeItsFloat()
    {
        QFETCH(const QString, text);
        const QObject receiver;
        QStringList order;
        const auto note = [&order](const auto &data) { order.append(data->valueText); };
        for (const char *name : {"Gain", "Gain/Alias"})
            connect(parameter(name).data(), &IParameter::parameterDataChangedDecoupled, &receiver,
                    note);
        write(QTest::currentDataTag(), text);
        QCOMPARE(order, QStringList({QStringLiteral("1000"), QStringLiteral("10.000")}));
    }

    void publishesOneFinalSnapshotWhenAReceiverWrites()
    {
        const SnapshotSpy spy(parameter("OffsetX"));
        const QObject receiver;
        connect(parameter("Width").data(), &IParameter::parameterDataChangedDecoupled, &receiver,
                [this] {
                    if (memory("OffsetX") == 0)
                        write("OffsetX", "8");
                });
        write("Width", "320");
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.text(), QStringLiteral("8"));
    }

    void publishesTheOldValueAfterARefusedWrite_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *tag, const char *name, const char *text) {
            QTest::newRow(tag) << QByteArray(name) << text;
        };
        row("too large", "Width", "100000");
        row("too small", "Width", "0");
        row("between two steps", "Width", "641");
        row("no number", "Width", "wide");
        row("float too large", "ExposureTime", "1e9");
        row("no finite float", "ExposureTime", "nan");
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
        QFETCH(const QByteArray, name);
        QFETCH(const QString, text);
        const QVariant before = memory(name);
        const QString shown = data(name)->valueText;
        const SnapshotSpy spy(parameter(name));
        QVERIFY_EXCEPTION_THROWN(write(name, text), GenICam::GenericException);
        QCOMPARE(memory(name), before);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.text(), shown);
    }

    void defersEveryPublication_data()
    {
        QTest::addColumn<bool>("isRefused");
        for (const char *action : {"write", "refresh", "invalidate"})
            QTest::newRow(action) << false;
        QTest::newRow("refused write") << true;
    }

    void defersEveryPublication()
    {
        QFETCH(const bool, isRefused);
        m_collection->setPublication(Publication::Deferred);
        const SnapshotSpy spy(parameter("Width"));
        if (isRefused)
            QVERIFY_EXCEPTION_THROWN(write("Width", ""), GenICam::GenericException);
        else
            ask(QTest::currentDataTag(), "Width");
        QCOMPARE(spy.count(), 0);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.snapshot(), data("Width"));
    }

    void doesNotPublishUnaskedWhatIsNotImplemented()
    {
        const SnapshotSpy spy(parameter("Never"));
        QVERIFY(!parameter("Never")->isImplemented());
        QVERIFY(!data("Never")->isReadable && !data("Never")->isWritable);
        m_collection->changeOnDevice(cameraPath("Never"), 1);
        for (const char *action : {"invalidate", "batch", "poll"})
            ask(action, "Never");
        QCOMPARE(spy.count(), 0);
        ask("refresh", "Never");
        QCOMPARE(spy.count(), 1);
    }

    void tellsWhenACommandIsDone()
    {
        const SnapshotSpy spy(parameter("Slow"));
        const SnapshotSpy effect(parameter("TLParamsLocked"));
        const auto isDone = [](const auto &data) {
            return data.template dynamicCast<const CommandParameterData>()->isDone;
        };
        QVERIFY(isDone(data("Slow")));
        parameter<ICommandParameter>("Slow")->execute(true);
        QCOMPARE(spy.count(), 1);
        QVERIFY(!isDone(spy.snapshot()));
        QCOMPARE(effect.count(), 0);
        QTRY_COMPARE(spy.count(), 2);
        QVERIFY(isDone(spy.snapshot()) && spy.text() != QLatin1String("1"));
        QTRY_COMPARE(effect.count(), 1);
        QCOMPARE(effect.text(), QStringLiteral("1"));
    }

private:
    /// Does what makes the collection look at its device.
    void ask(const QByteArray &action, const char *name = "Temperature") const
    {
        if (action == "poll")
            m_collection->poll(300);
        else if (action == "batch")
            m_collection->endBatchUpdate();
        else if (action == "invalidate")
            parameter(name)->node()->invalidate();
        else if (action == "refresh")
            parameter(name)->refresh(true);
        else
            write(name, "320");
    }
};

QTEST_GUILESS_MAIN(TestPublication)
#include "tst_publication.moc"
