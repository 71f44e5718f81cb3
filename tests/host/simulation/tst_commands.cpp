// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/parameternode.h"

using namespace ParameterCollection;
using namespace Simulation;

/// What commands do to the device, at once or when their time is over.
class TestCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_collection = openTestDevice();
    }

    void runsByText()
    {
        set("Start", "1");
        QCOMPARE(memory("TLParamsLocked"), QVariant(1LL));
        set("Stop", "0");
        QCOMPARE(memory("TLParamsLocked"), QVariant(1LL));
        set("Stop", "1");
        QCOMPARE(memory("TLParamsLocked"), QVariant(0LL));
    }

    void refusesToRunWhatIsLocked()
    {
        parameter("Start")->node()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RO"));
        SnapshotSpy spy(parameter("Start"));
        QVERIFY(throws<GenICam::GenericException>([this] { start("Start"); }));
        QCOMPARE(memory("TLParamsLocked"), QVariant(0LL));
        QCOMPARE(spy.count(), 1);
    }

    void copiesAndCounts()
    {
        SnapshotSpy frames(parameter("FrameCount"));
        SnapshotSpy latched(parameter("Latched"));
        start("Trigger");
        start("Trigger");
        QCOMPARE(frames.text(), QStringLiteral("2"));
        start("Latch");
        QCOMPARE(latched.text(), QStringLiteral("2"));
    }

    void countsWhileTheConditionHolds()
    {
        SnapshotSpy spy(parameter("Beats"));
        start("Start");
        QTRY_VERIFY(spy.count() > 3);
        start("Stop");
        // Over its maximum it has started again.
        QVERIFY(memory("Beats").toInt() <= 9);
        QTRY_COMPARE(spy.text(), memory("Beats").toString());
    }

    void bringsBackASavedUserSet()
    {
        set("UserSetSelector", "UserSet1");
        set("Width", "320");
        set("GainSelector", "Digital");
        set("Gain", "7.5");
        start("UserSetSave");
        set("Width", "160");
        set("Gain", "2.5");
        SnapshotSpy width(parameter("Width"));
        SnapshotSpy gain(parameter("Gain"));
        start("UserSetLoad");
        QTRY_VERIFY(!width.isEmpty() && !gain.isEmpty());
        QCOMPARE(width.text(), QStringLiteral("320"));
        QCOMPARE(gain.text(), QStringLiteral("7.500"));
        QCOMPARE(memory("UserSetSelector"), QVariant(QStringLiteral("UserSet1")));

        set("UserSetSelector", "Default");
        start("UserSetLoad");
        QTRY_COMPARE(memory("Width"), QVariant(640LL));
        QCOMPARE(memory("GainSelector"), QVariant(QStringLiteral("All")));
        QCOMPARE(memory("Gain"), QVariant(0.5));
    }

    void bringsEverythingBackByAReset()
    {
        set("Width", "320");
        SnapshotSpy width(parameter("Width"));
        start("Slow");
        start("Reset");
        QTRY_VERIFY(!width.isEmpty() && width.text() == QLatin1String("640"));
        QTRY_VERIFY(isDone("Reset") && isDone("Slow"));
    }

    void goesOnAfterUnplugging()
    {
        start("Slow");
        m_collection->unplug();
        QVERIFY(throws<GenICam::GenericException>([this] { start("Slow"); }));
        m_collection->revive();
        QTRY_VERIFY(isDone("Slow"));
        QCOMPARE(memory("TLParamsLocked"), QVariant(1LL));
    }

private:
    QSharedPointer<IParameter> parameter(const char *name)
    {
        return m_collection->parameter(cameraPath(name));
    }

    QVariant memory(const char *name) const
    {
        return m_collection->deviceValue(cameraPath(name));
    }

    void set(const char *name, const char *text)
    {
        parameter(name)->setFromString(QString::fromLatin1(text));
    }

    void start(const char *name)
    {
        parameter(name).objectCast<ICommandParameter>()->execute(true);
    }

    bool isDone(const char *name)
    {
        const auto command = parameter(name);
        command->refresh(false);
        return command->parameterData().dynamicCast<const CommandParameterData>()->isDone;
    }

    QSharedPointer<SimulatedCollection> m_collection;
};

QTEST_GUILESS_MAIN(TestCommands)
#include "tst_commands.moc"
