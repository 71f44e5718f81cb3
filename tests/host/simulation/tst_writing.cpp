// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"

using namespace ParameterCollection;
using namespace Simulation;

/// What writes and commands do in the camera's memory, and what they do to other features.
class TestWriting : public DeviceTest
{
    Q_OBJECT

private Q_SLOTS:
    void takesText_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *tag, const char *name, const char *text,
                            const QVariant &value) {
            QTest::newRow(tag) << QByteArray(name) << QString::fromUtf8(text) << value;
        };
        row("hexadecimal for a decimal one", "Width", "0x140", 320LL);
        row("decimal for a hexadecimal one", "Register", "-1", -1LL);
        row("64 bits", "Register", "0xffffffffffffffff", -1LL);
        row("IP address", "Address", "10.0.0.255", 0x0A0000FFLL);
        row("MAC address", "Mac", "00:11:22:33:44:55", 0x001122334455LL);
        row("on", "HighBitDepth", "1", true);
        row("float with exponent", "ExposureTime", "1e3", 1000.0);
        row("entry", "ExposureAuto", "Once", QStringLiteral("Once"));
        row("byte for each character", "UserName", "n\u00c3\u00a4", QByteArray("n\xC3\xA4"));
        row("Latin-1 bytes", "OldName", "n\u00e4", QByteArray("n\xE4"));
        row("empty text", "UserName", "", QByteArray());
        row("write only", "Secret", "key", QByteArray("key"));
    }

    void takesText()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QString, text);
        write(name, text);
        QTEST(memory(name), "value");
        QCOMPARE(m_collection->counters().of(cameraPath(name)).writes, 1);
    }

    void pullsNumbersInUnlessVerified()
    {
        const auto width = parameter<IIntegerParameter>("Width");
        QVERIFY_EXCEPTION_THROWN(width->setValue(641, true), GenICam::InvalidArgumentException);
        QCOMPARE(width->value(), 640);
        width->setValue(645, false);
        QCOMPARE(width->value(), 644);
        width->setValue(100000, false);
        QCOMPARE(width->value(), 1024);
        const auto gain = parameter<IFloatParameter>("Gain");
        QVERIFY_EXCEPTION_THROWN(gain->setValue(20.1), GenICam::InvalidArgumentException);
        gain->setValue(20.1, false);
        QCOMPARE(gain->value(), gain->maximum());
    }

    void pullsInWhatItsLimitsLeaveBehind()
    {
        m_collection->changeOnDevice(cameraPath("SensorWidth"), 501);
        QCOMPARE(memory("Width"), QVariant(500LL));
        QCOMPARE(memory("OffsetX"), QVariant(0LL));
    }

    void locksFeaturesByOthers()
    {
        write("ExposureAuto", "Continuous");
        for (const char *name : {"ExposureTime", "ExposureTime/Alias"}) {
            QVERIFY(!parameter(name)->isWritable() && data(name)->isReadable);
            QVERIFY_EXCEPTION_THROWN(write(name, "100"), GenICam::GenericException);
        }
        write("ExposureAuto", "Off");
        QVERIFY(parameter("ExposureTime")->isWritable());
    }

    void keepsAValueForEachSelection()
    {
        const SnapshotSpy spy(parameter("Gain"));
        write("GainSelector", "Digital");
        QCOMPARE(spy.text(), QStringLiteral("1.500"));
        write("Gain", "2.5");
        write("GainSelector", "All");
        QCOMPARE(spy.text(), QStringLiteral("0.500"));
        write("GainSelector", "Digital");
        QCOMPARE(spy.text(), QStringLiteral("2.500"));
    }

    void keepsTheAliasWithItsFloat_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<double>("value");
        QTest::addColumn<qint64>("alias");
        QTest::newRow("unit, within") << QByteArray("ExposureTime") << 250.0 << qint64(250);
        QTest::newRow("linear, lowest") << QByteArray("Gain") << 0.0 << qint64(0);
        QTest::newRow("linear, within") << QByteArray("Gain") << 5.0 << qint64(500);
        QTest::newRow("linear, highest") << QByteArray("Gain") << 20.0 << qint64(2000);
    }

    void keepsTheAliasWithItsFloat()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const double, value);
        QFETCH(const qint64, alias);
        const auto number = parameter<IFloatParameter>(name);
        const auto companion = parameter<IIntegerParameter>(name + "/Alias");
        number->setValue(value);
        QCOMPARE(companion->value(), alias);
        number->setValue(number->minimum() + 1.0);
        companion->setValue(alias, true);
        QCOMPARE(number->value(), value);
    }

    void givesAliasesAConstantRange()
    {
        const auto alias = data<IntegerParameterData>("ExposureTime/Alias");
        QCOMPARE(alias->minimum, 1);
        QCOMPARE(alias->maximum, 1000000);
        QCOMPARE(alias->increment, 1);
        QCOMPARE(alias->representation, QStringLiteral("Logarithmic"));
        // The float lies between two values of the companion.
        QCOMPARE(alias->value, 5000);
    }

    void commandsRunByText()
    {
        write("Start", "1");
        QVERIFY(!parameter("Width")->isWritable());
        write("Stop", "0");
        QCOMPARE(memory("TLParamsLocked"), QVariant(1LL));
        write("Stop", "1");
        QVERIFY(parameter("Width")->isWritable());
    }

    void lockedCommandsDoNotRun()
    {
        parameter("Start")->node()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RO"));
        const SnapshotSpy spy(parameter("Start"));
        QVERIFY_EXCEPTION_THROWN(execute("Start"), GenICam::GenericException);
        QCOMPARE(memory("TLParamsLocked"), QVariant(0LL));
        QCOMPARE(spy.count(), 1);
    }

    void commandsCopyAndCount()
    {
        const SnapshotSpy frames(parameter("FrameCount"));
        const SnapshotSpy latched(parameter("Latched"));
        execute("Trigger");
        execute("Trigger");
        QCOMPARE(frames.text(), QStringLiteral("2"));
        execute("Latch");
        QCOMPARE(latched.text(), QStringLiteral("2"));
    }

    void countersCountWhileTheirConditionHolds()
    {
        const SnapshotSpy spy(parameter("Beats"));
        execute("Start");
        QTRY_VERIFY(spy.count() > 3);
        execute("Stop");
        // Over its maximum it has started again.
        QVERIFY(memory("Beats").toInt() <= 9);
        QTRY_COMPARE(spy.text(), memory("Beats").toString());
    }

    void aUserSetIsSavedAndBroughtBack()
    {
        write("UserSetSelector", "UserSet1");
        write("Width", "320");
        write("GainSelector", "Digital");
        write("Gain", "7.5");
        execute("UserSetSave");
        write("Width", "160");
        write("Gain", "2.5");
        const SnapshotSpy width(parameter("Width"));
        const SnapshotSpy gain(parameter("Gain"));
        execute("UserSetLoad");
        QTRY_VERIFY(!width.isEmpty() && !gain.isEmpty());
        QCOMPARE(width.text(), QStringLiteral("320"));
        QCOMPARE(gain.text(), QStringLiteral("7.500"));
        QCOMPARE(memory("UserSetSelector"), QVariant(QStringLiteral("UserSet1")));

        write("UserSetSelector", "Default");
        execute("UserSetLoad");
        QTRY_COMPARE(memory("Width"), QVariant(640LL));
        QCOMPARE(memory("GainSelector"), QVariant(QStringLiteral("All")));
        QCOMPARE(memory("Gain"), QVariant(0.5));
    }

    void aResetBringsEverythingBack()
    {
        write("Width", "320");
        const SnapshotSpy width(parameter("Width"));
        execute("Slow");
        execute("Reset");
        QTRY_VERIFY(!width.isEmpty() && width.text() == QLatin1String("640"));
        QTRY_VERIFY(isDone("Reset") && isDone("Slow"));
    }

private:
    void execute(const char *name) const
    {
        parameter<ICommandParameter>(name)->execute(true);
    }

    bool isDone(const char *name) const
    {
        parameter(name)->refresh(false);
        return data<CommandParameterData>(name)->isDone;
    }
};

QTEST_GUILESS_MAIN(TestWriting)
#include "tst_writing.moc"
