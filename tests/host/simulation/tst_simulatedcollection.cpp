// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/parameternode.h"

using namespace ParameterCollection;
using namespace Simulation;

/// What a collection gives: objects by name, categories and their children, trees, texts.
class TestSimulatedCollection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_collection = openTestDevice();
    }

    void givesOneObjectForEachName()
    {
        const QString width = QStringLiteral("@CameraDevice/Width");
        QVERIFY(m_collection->parameter(width));
        QCOMPARE(m_collection->parameter(width), m_collection->parameter(width));
        QCOMPARE(m_collection->parameter(width)->fullName(), width);
        QCOMPARE(m_collection->parameter(width)->name(), QStringLiteral("Width"));
        QVERIFY(!m_collection->parameter(QStringLiteral("@CameraDevice/Depth")));
        QVERIFY(m_collection->parameter(QStringLiteral("@CameraDevice/Nothing"))->isNull());
    }

    void givesTheKindThatTheFeatureHas_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("interface");
        QTest::newRow("integer") << "Width" << 1 << QByteArray("IIntegerParameter");
        QTest::newRow("boolean") << "HighBitDepth" << 2 << QByteArray("IBooleanParameter");
        QTest::newRow("float") << "Gain" << 3 << QByteArray("IFloatParameter");
        QTest::newRow("command") << "Start" << 4 << QByteArray("ICommandParameter");
        QTest::newRow("string") << "UserName" << 5 << QByteArray("IParameter");
        QTest::newRow("enumeration") << "PixelFormat" << 6 << QByteArray("IEnumParameter");
        QTest::newRow("category") << "ImageFormatControl" << 7 << QByteArray("IParameter");
        QTest::newRow("alias") << "Gain/Alias" << 1 << QByteArray("IIntegerParameter");
    }

    void givesTheKindThatTheFeatureHas()
    {
        QFETCH(const QString, name);
        QFETCH(const int, type);
        QFETCH(const QByteArray, interface);
        const auto parameter = m_collection->parameter(QStringLiteral("@CameraDevice/") + name);
        QCOMPARE(int(parameter->type()), type);
        QCOMPARE(QByteArray(parameter->metaObject()->className()),
                 QByteArray("ParameterCollection::" + interface));
        QCOMPARE(parameter->parameterData()->type, type);
    }

    void listsCategoriesInTheirOrder()
    {
        QCOMPARE(m_collection->children(QStringLiteral("@CameraDevice/Root"), 0, true),
                 QStringList({QStringLiteral("@CameraDevice/ImageFormatControl"),
                              QStringLiteral("@CameraDevice/AnalogControl"),
                              QStringLiteral("@CameraDevice/DeviceControl")}));
        QCOMPARE(m_collection->children(QStringLiteral("@CameraDevice/Empty"), 0, true),
                 QStringList());
        QCOMPARE(m_collection->children(QStringLiteral("@CameraDevice/Width"), 0, true),
                 QStringList());
    }

    void findsCompanionsWithoutListingThem()
    {
        const QString alias = QStringLiteral("@CameraDevice/Gain/Alias");
        QVERIFY(m_collection->contains(alias));
        QVERIFY(m_collection->parameter(alias));
        QVERIFY(!m_collection->contains(QStringLiteral("@CameraDevice/Gamma/Alias")));
        QVERIFY(!m_collection->children(QStringLiteral("@CameraDevice/AnalogControl"), 0, true)
                     .contains(alias));
    }

    void showsValuesAsText_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *tag, const char *name, const char *text) {
            QTest::newRow(tag) << name << text;
        };
        row("linear", "Width", "640");
        row("logarithmic", "Scale", "10");
        row("pure", "Timeout", "100");
        row("hexadecimal", "Register", "0x7fffffffffffffff");
        row("IP address", "Address", "192.168.0.1");
        row("MAC address", "Mac", "00:30:53:1a:2b:3c");
        row("integer switch", "Flag", "1");
        row("switch", "HighBitDepth", "0");
        row("float", "ExposureTime", "5000.4");
        row("zeros of a float", "Gain", "0.500");
        row("entry", "PixelFormat", "Mono8");
        QTest::newRow("UTF-8") << "UserName" << QStringLiteral("gr\u00fcn");
        QTest::newRow("Latin-1") << "OldName" << QStringLiteral("gr\u00fcn");
        row("command", "Stop", "0");
        row("write only", "Secret", "");
    }

    void showsValuesAsText()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, text);
        auto parameter = m_collection->parameter(QStringLiteral("@CameraDevice/") + name);
        if (!parameter) {
            QTRY_VERIFY(m_collection->parameter(QStringLiteral("@EventGrabber/") + name));
            parameter = m_collection->parameter(QStringLiteral("@EventGrabber/") + name);
        }
        QCOMPARE(parameter->parameterData()->valueText, text);
    }

    void attachesALateTree()
    {
        const QString late = QStringLiteral("@EventGrabber");
        QSignalSpy spy(m_collection.data(), &IParameterCollection::nodeMapAttached);
        QCOMPARE(m_collection->attachedParameterPaths(),
                 QStringList({QStringLiteral("@CameraDevice")}));
        QVERIFY(!m_collection->parameter(late + QStringLiteral("/Root")));
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toString(), late);
        QCOMPARE(m_collection->attachedParameterPaths().last(), late);
        QVERIFY(m_collection->parameter(late + QStringLiteral("/Root")));
    }

    void describesCategoriesWithoutAskingTheDevice()
    {
        const auto category = m_collection->parameter(cameraPath("ImageFormatControl"));
        m_collection->faults().failReads(category->fullName(), FaultKind::GenericException);
        const auto data = category->parameterData();
        QCOMPARE(data->type, qint32(ParameterType::Category));
        QVERIFY(data->isImplemented && data->isReadable && !data->isWritable);
        QCOMPARE(data->visibility, qint32(GenApi::Beginner));
        QCOMPARE(m_collection->counters().total().reads, 0);
    }

    void givesNullObjects()
    {
        m_collection->faults().setNullObject(QStringLiteral("@CameraDevice/Unheard"), true);
        for (const char *name : {"Nothing", "Target", "Unheard"}) {
            const auto object = m_collection->parameter(cameraPath(name));
            QVERIFY(object && object->isNull() && object->node());
            QVERIFY(!object->isWritable() && !object->isImplemented());
            QCOMPARE(object->hasFilterTarget(), qstrcmp(name, "Nothing") != 0);
            QVERIFY(throws<GenICam::GenericException>([&] { object->refresh(true); }));
            object->node()->setProperty(QStringLiteral("Visibility"), QStringLiteral("Guru"));
            QCOMPARE(object->node()->property(QStringLiteral("Visibility")),
                     QStringLiteral("Guru"));
        }
    }

    void answersProperties_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("ofWidth");
        QTest::addColumn<QString>("ofRegister");
        const auto row = [](const char *tag, const char *key, const char *ofWidth,
                            const char *ofRegister) {
            QTest::newRow(tag) << key << ofWidth << ofRegister;
        };
        row("unit", "Unit", "px", "");
        row("display name", "DisplayName", "Width of the image", "");
        row("tool tip", "Tooltip", "Width", "");
        row("description", "Description", "Width in pixels.", "");
        row("link", "DocuURL", "https://example.invalid/width", "");
        row("representation", "Representation", "Linear", "HexNumber");
        row("unknown key", "unit", "", "");
    }

    void answersProperties()
    {
        QFETCH(const QString, key);
        const auto width = m_collection->parameter(cameraPath("Width"))->node();
        const auto other = m_collection->parameter(cameraPath("Register"))->node();
        QTEST(width->property(key), "ofWidth");
        QTEST(other->property(key), "ofRegister");
        if (other->property(key).isEmpty())
            QCOMPARE(other->property(key, QStringLiteral("none")), QStringLiteral("none"));
    }

    void narrowsAccessByOverride_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("flags");
        const auto row = [](const char *tag, const char *name, const char *mode,
                            const char *flags) { QTest::newRow(tag) << name << mode << flags; };
        row("as the device has it", "Width", "RW", "implemented readable writable");
        row("read only", "Width", "RO", "implemented readable");
        row("write only", "Width", "WO", "implemented writable");
        row("not available", "Width", "NA", "implemented");
        row("not implemented", "Width", "NI", "");
        row("not widened", "FrameCount", "RW", "implemented readable");
        row("nothing in common", "FrameCount", "WO", "implemented");
    }

    void narrowsAccessByOverride()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, mode);
        const auto target = m_collection->parameter(cameraPath(name.toLatin1().constData()));
        target->parameterData();
        target->node()->setProperty(QStringLiteral("AccessMode"), mode);
        const auto data = target->parameterData();
        QStringList flags;
        if (data->isImplemented)
            flags.append(QStringLiteral("implemented"));
        if (data->isReadable)
            flags.append(QStringLiteral("readable"));
        if (data->isWritable)
            flags.append(QStringLiteral("writable"));
        QTEST(flags.join(QLatin1Char(' ')), "flags");
        QCOMPARE(target->isWritable(), data->isWritable);
        QCOMPARE(target->isImplemented(), data->isImplemented);
        if (!data->isWritable)
            QVERIFY(throws<GenICam::GenericException>(
                [&] { target->setFromString(QStringLiteral("320")); }));
    }

    void changesVisibilityByOverride()
    {
        for (const char *name : {"Width", "ImageFormatControl"}) {
            const auto target = m_collection->parameter(cameraPath(name));
            QCOMPARE(target->visibility(), GenApi::Beginner);
            target->node()->setProperty(QStringLiteral("Visibility"), QStringLiteral("Invisible"));
            QCOMPARE(target->visibility(), GenApi::Invisible);
            QCOMPARE(target->parameterData()->visibility, qint32(GenApi::Invisible));
        }
    }

    void refusesOverridesOfUnknownMeaning()
    {
        const auto node = m_collection->parameter(cameraPath("Width"))->node();
        for (const char *key : {"Visibility", "AccessMode"})
            QVERIFY(throws<GenICam::InvalidArgumentException>(
                [&] { node->setProperty(QString::fromLatin1(key), QStringLiteral("sometimes")); }));
        QVERIFY(m_collection->parameter(cameraPath("Width"))->isWritable());
    }

    void changesWhatCanBeChosen()
    {
        const auto format = m_collection->parameter(cameraPath("PixelFormat"));
        const auto names = [&format] {
            return format->parameterData().dynamicCast<const EnumParameterData>()->entryNames;
        };
        QCOMPARE(names(), QVector<QString>({QStringLiteral("Mono8")}));
        m_collection->parameter(cameraPath("HighBitDepth"))->setFromString(QStringLiteral("1"));
        QCOMPARE(names(), QVector<QString>({QStringLiteral("Mono8"), QStringLiteral("Mono12")}));
        format->setFromString(QStringLiteral("Mono12"));
        m_collection->parameter(cameraPath("HighBitDepth"))->setFromString(QStringLiteral("0"));
        // The device keeps an entry that cannot be chosen any more.
        QCOMPARE(format->parameterData()->valueText, QStringLiteral("Mono12"));
        QCOMPARE(names(), QVector<QString>({QStringLiteral("Mono8")}));
    }

    void makesFeaturesComeAndGo()
    {
        const auto later = m_collection->parameter(cameraPath("Later"));
        QVERIFY(!later->parameterData()->isReadable && later->isImplemented());
        SnapshotSpy spy(later);
        m_collection->parameter(cameraPath("HighBitDepth"))->setFromString(QStringLiteral("1"));
        QCOMPARE(spy.count(), 1);
        QVERIFY(spy.snapshot()->isReadable && spy.snapshot()->isWritable);
        QCOMPARE(spy.text(), QStringLiteral("5"));
    }

    void showsWhatTheDeviceHoldsOutsideItsLimitsAsNotWritable()
    {
        const auto width = m_collection->parameter(cameraPath("Width"));
        SnapshotSpy spy(width);
        m_collection->changeOnDevice(cameraPath("Width"), 5000);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.text(), QStringLiteral("5000"));
        QVERIFY(!spy.snapshot()->isWritable && spy.snapshot()->isReadable);
    }

private:
    QSharedPointer<SimulatedCollection> m_collection;
};

QTEST_GUILESS_MAIN(TestSimulatedCollection)
#include "tst_simulatedcollection.moc"
