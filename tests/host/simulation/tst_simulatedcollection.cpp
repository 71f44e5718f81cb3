// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"

using namespace ParameterCollection;
using namespace Simulation;

namespace {

QString access(const ParameterData &data)
{
    if (data.isWritable)
        return QLatin1String(data.isReadable ? "RW" : "WO");
    return QLatin1String(data.isReadable ? "RO" : data.isImplemented ? "NA" : "NI");
}

} // namespace

/// What a collection gives: objects by name, categories and their children, trees, texts.
class TestSimulatedCollection : public DeviceTest
{
    Q_OBJECT

private Q_SLOTS:
    void givesOneObjectForEachName()
    {
        QCOMPARE(parameter("Width"), parameter("Width"));
        QCOMPARE(parameter("Width")->fullName(), cameraPath("Width"));
        QCOMPARE(parameter("Width")->name(), QStringLiteral("Width"));
        QVERIFY(!parameter("Depth"));
    }

    void givesKindAndTextAndTakesItBack_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::newRow("Width") << 1 << "640";
        QTest::newRow("Register") << 1 << "0x7fffffffffffffff";
        QTest::newRow("Address") << 1 << "192.168.0.1";
        QTest::newRow("Mac") << 1 << "00:30:53:1a:2b:3c";
        QTest::newRow("Flag") << 1 << "1";
        QTest::newRow("Gain/Alias") << 1 << "50";
        QTest::newRow("HighBitDepth") << 2 << "0";
        QTest::newRow("ExposureTime") << 3 << "5000.4";
        QTest::newRow("Gain") << 3 << "0.500";
        QTest::newRow("Gamma") << 3 << "1.00";
        QTest::newRow("Stop") << 4 << "0";
        QTest::newRow("UserName") << 5 << QStringLiteral("gr\u00fcn");
        QTest::newRow("OldName") << 5 << QStringLiteral("gr\u00fcn");
        QTest::newRow("Secret") << 5 << "";
        QTest::newRow("PixelFormat") << 6 << "Mono8";
        QTest::newRow("ImageFormatControl") << 7 << "";
    }

    void givesKindAndTextAndTakesItBack()
    {
        const QByteArray name = QTest::currentDataTag();
        QTEST(int(parameter(name)->type()), "type");
        QTEST(data(name)->type, "type");
        QTEST(data(name)->valueText, "text");
        if (data(name)->isWritable && data(name)->isReadable && data(name)->type != String) {
            const QVariant before = memory(name);
            write(name, data(name)->valueText);
            QCOMPARE(memory(name), before);
        }
    }

    void listsChildrenInTheirOrderWithoutCompanions()
    {
        const auto children = [this](const char *name) {
            return m_collection->children(cameraPath(name), 0, true).join(QLatin1Char(' '));
        };
        QCOMPARE(children("AnalogControl").remove(cameraPath(QByteArray())),
                 QStringLiteral("ExposureAuto ExposureTime GainSelector Gain Gamma"));
        QCOMPARE(children("Width"), QString());
        QVERIFY(m_collection->contains(cameraPath("Gain/Alias")));
        QVERIFY(!m_collection->contains(cameraPath("Gamma/Alias")));
    }

    void attachesALateTree()
    {
        const QString late = QStringLiteral("@EventGrabber");
        const QString timeout = late + QStringLiteral("/Timeout");
        const QSignalSpy spy(m_collection.data(), &IParameterCollection::nodeMapAttached);
        QVERIFY(!m_collection->attachedParameterPaths().contains(late));
        QVERIFY(!m_collection->parameter(timeout));
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toString(), late);
        QCOMPARE(m_collection->attachedParameterPaths().last(), late);
        QCOMPARE(m_collection->parameter(timeout)->parameterData()->valueText,
                 QStringLiteral("100"));
    }

    void describesCategoriesWithoutAskingTheDevice()
    {
        const QString category = cameraPath("ImageFormatControl");
        m_collection->faults().failReads(category, FaultKind::GenericException);
        QCOMPARE(access(*data("ImageFormatControl")), QStringLiteral("RO"));
        QCOMPARE(m_collection->counters().total().reads, 0);
    }

    void givesNullObjects()
    {
        m_collection->faults().setNullObject(cameraPath("Unheard"), true);
        for (const char *name : {"Nothing", "Target", "Unheard"}) {
            const auto object = parameter(name);
            QVERIFY(object && object->isNull());
            QVERIFY(!object->isWritable() && !object->isImplemented());
            QCOMPARE(object->hasFilterTarget(), qstrcmp(name, "Nothing") != 0);
            QVERIFY_EXCEPTION_THROWN(object->refresh(true), GenICam::GenericException);
            const QString level = QStringLiteral("Visibility");
            object->node()->setProperty(level, QStringLiteral("Guru"));
            QCOMPARE(object->node()->property(level), QStringLiteral("Guru"));
        }
    }

    void answersProperties()
    {
        QStringList answers;
        for (const char *key : {"Unit", "DisplayName", "Tooltip", "Description", "DocuURL",
                                "Representation", "unit"}) {
            const auto node = parameter("Width")->node();
            answers += node->property(QLatin1String(key), QStringLiteral("none"));
        }
        QCOMPARE(answers.join(QLatin1Char('|')),
                 QStringLiteral("px|Width of the image|Width|Width in pixels.|"
                                "https://example.invalid/width|Linear|none"));
    }

    void narrowsAccessByOverride_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("result");
        const auto row = [](const char *tag, const char *name, const char *mode,
                            const char *result) {
            QTest::newRow(tag) << QByteArray(name) << mode << result;
        };
        row("as the device has it", "Width", "RW", "RW");
        row("read only", "Width", "RO", "RO");
        row("write only", "Width", "WO", "WO");
        row("not available", "Width", "NA", "NA");
        row("not implemented", "Width", "NI", "NI");
        row("not widened", "FrameCount", "RW", "RO");
        row("nothing in common", "FrameCount", "WO", "NA");
    }

    void narrowsAccessByOverride()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QString, mode);
        const auto target = parameter(name);
        target->parameterData();
        target->node()->setProperty(QStringLiteral("AccessMode"), mode);
        const auto data = target->parameterData();
        QTEST(access(*data), "result");
        QCOMPARE(target->isWritable(), data->isWritable);
        QCOMPARE(target->isImplemented(), data->isImplemented);
        if (!data->isWritable)
            QVERIFY_EXCEPTION_THROWN(write(name, "320"), GenICam::GenericException);
    }

    void changesVisibilityByOverrideAndRefusesUnknownWords()
    {
        for (const char *name : {"Width", "ImageFormatControl"}) {
            const auto node = parameter(name)->node();
            node->setProperty(QStringLiteral("Visibility"), QStringLiteral("Invisible"));
            for (const char *key : {"Visibility", "AccessMode"})
                QVERIFY_EXCEPTION_THROWN(
                    node->setProperty(QLatin1String(key), QStringLiteral("sometimes")),
                    GenICam::InvalidArgumentException);
            QCOMPARE(parameter(name)->visibility(), GenApi::Invisible);
            QCOMPARE(data(name)->visibility, qint32(GenApi::Invisible));
        }
    }

    void makesEntriesAndFeaturesComeAndGo()
    {
        const auto names = [this] { return data<EnumParameterData>("PixelFormat")->entryNames; };
        SnapshotSpy later(parameter("Later"));
        QVERIFY(parameter("Later")->isImplemented());
        QCOMPARE(access(*data("Later")), QStringLiteral("NA"));
        QCOMPARE(names(), QVector<QString> {QStringLiteral("Mono8")});
        write("HighBitDepth", "1");
        QCOMPARE(later.count(), 1);
        QCOMPARE(access(*later.snapshot()), QStringLiteral("RW"));
        QCOMPARE(later.text(), QStringLiteral("5"));
        QCOMPARE(names(), QVector<QString>({QStringLiteral("Mono8"), QStringLiteral("Mono12")}));
        write("PixelFormat", "Mono12");
        write("HighBitDepth", "0");
        // The device keeps an entry that cannot be chosen any more.
        QCOMPARE(data("PixelFormat")->valueText, QStringLiteral("Mono12"));
        QCOMPARE(names(), QVector<QString> {QStringLiteral("Mono8")});
    }

    void showsWhatTheDeviceHoldsOutsideItsLimitsAsNotWritable()
    {
        SnapshotSpy spy(parameter("Width"));
        m_collection->changeOnDevice(cameraPath("Width"), 5000);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.text(), QStringLiteral("5000"));
        QCOMPARE(access(*spy.snapshot()), QStringLiteral("RO"));
    }
};

QTEST_GUILESS_MAIN(TestSimulatedCollection)
#include "tst_simulatedcollection.moc"
