// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/enumparameter.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/integerparameter.h"

#include "host/simulation/description/descriptionreader.h"
#include "host/simulation/simulatedcollection.h"

#include <QSignalSpy>
#include <QTest>

using namespace ParameterCollection;
using namespace Simulation;

/// What a collection gives: objects by name, categories and their children, trees, texts.
class TestSimulatedCollection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void givesOneObjectForEachName();
    void givesTheKindThatTheFeatureHas_data();
    void givesTheKindThatTheFeatureHas();
    void listsCategoriesInTheirOrder();
    void findsCompanionsWithoutListingThem();
    void showsValuesAsText_data();
    void showsValuesAsText();
    void attachesALateTree();

private:
    QSharedPointer<SimulatedCollection> m_collection;
};

void TestSimulatedCollection::init()
{
    DescriptionReader reader;
    const auto description = reader.read(QStringLiteral(":/test/device.json"));
    QCOMPARE(reader.problems(), QStringList());
    m_collection = QSharedPointer<SimulatedCollection>::create(description);
}

void TestSimulatedCollection::givesOneObjectForEachName()
{
    const QString width = QStringLiteral("@CameraDevice/Width");
    QVERIFY(m_collection->parameter(width));
    QCOMPARE(m_collection->parameter(width), m_collection->parameter(width));
    QCOMPARE(m_collection->parameter(width)->fullName(), width);
    QCOMPARE(m_collection->parameter(width)->name(), QStringLiteral("Width"));
    QVERIFY(!m_collection->parameter(QStringLiteral("@CameraDevice/Depth")));
    QVERIFY(m_collection->parameter(QStringLiteral("@CameraDevice/Nothing"))->isNull());
}

void TestSimulatedCollection::givesTheKindThatTheFeatureHas_data()
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

void TestSimulatedCollection::givesTheKindThatTheFeatureHas()
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

void TestSimulatedCollection::listsCategoriesInTheirOrder()
{
    QCOMPARE(m_collection->children(QStringLiteral("@CameraDevice/Root"), 0, true),
             QStringList({QStringLiteral("@CameraDevice/ImageFormatControl"),
                          QStringLiteral("@CameraDevice/AnalogControl"),
                          QStringLiteral("@CameraDevice/DeviceControl")}));
    QCOMPARE(m_collection->children(QStringLiteral("@CameraDevice/Empty"), 0, true), QStringList());
    QCOMPARE(m_collection->children(QStringLiteral("@CameraDevice/Width"), 0, true), QStringList());
}

void TestSimulatedCollection::findsCompanionsWithoutListingThem()
{
    const QString alias = QStringLiteral("@CameraDevice/Gain/Alias");
    QVERIFY(m_collection->contains(alias));
    QVERIFY(m_collection->parameter(alias));
    QVERIFY(!m_collection->contains(QStringLiteral("@CameraDevice/Gamma/Alias")));
    QVERIFY(!m_collection->children(QStringLiteral("@CameraDevice/AnalogControl"), 0, true)
                 .contains(alias));
}

void TestSimulatedCollection::showsValuesAsText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("linear") << "Width"
                            << "640";
    QTest::newRow("logarithmic") << "Scale"
                                 << "10";
    QTest::newRow("pure") << "Timeout"
                          << "100";
    QTest::newRow("hexadecimal") << "Register"
                                 << "0x7fffffffffffffff";
    QTest::newRow("IP address") << "Address"
                                << "192.168.0.1";
    QTest::newRow("MAC address") << "Mac"
                                 << "00:30:53:1a:2b:3c";
    QTest::newRow("integer switch") << "Flag"
                                    << "1";
    QTest::newRow("switch") << "HighBitDepth"
                            << "0";
    QTest::newRow("float") << "ExposureTime"
                           << "5000.4";
    QTest::newRow("zeros of a float") << "Gain"
                                      << "0.500";
    QTest::newRow("entry") << "PixelFormat"
                           << "Mono8";
    QTest::newRow("UTF-8") << "UserName" << QStringLiteral("gr\u00fcn");
    QTest::newRow("Latin-1") << "OldName" << QStringLiteral("gr\u00fcn");
    QTest::newRow("command") << "Stop"
                             << "0";
    QTest::newRow("write only") << "Secret"
                                << "";
}

void TestSimulatedCollection::showsValuesAsText()
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

void TestSimulatedCollection::attachesALateTree()
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

QTEST_GUILESS_MAIN(TestSimulatedCollection)
#include "tst_simulatedcollection.moc"
