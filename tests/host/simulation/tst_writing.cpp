// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"

using namespace ParameterCollection;
using namespace Simulation;

/// What a write does in the camera's memory, and what it does to other features.
class TestWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_collection = openTestDevice();
    }

    void takesText_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVariant>("memory");
        const auto row = [](const char *tag, const char *name, const char *text,
                            const QVariant &memory) {
            QTest::newRow(tag) << name << text << memory;
        };
        row("decimal", "Width", "320", 320LL);
        row("hexadecimal for a decimal one", "Width", "0x140", 320LL);
        row("decimal for a hexadecimal one", "Register", "-1", -1LL);
        row("64 bits", "Register", "0xffffffffffffffff", -1LL);
        row("IP address", "Address", "10.0.0.255", 0x0A0000FFLL);
        row("MAC address", "Mac", "00:11:22:33:44:55", 0x001122334455LL);
        row("integer switch", "Flag", "0", 0LL);
        row("logarithmic", "Scale", "1000", 1000LL);
        row("on", "HighBitDepth", "1", true);
        row("float", "Gain", "1.25", 1.25);
        row("float with exponent", "ExposureTime", "1e3", 1000.0);
        row("entry", "ExposureAuto", "Once", QVariant(QStringLiteral("Once")));
        QTest::newRow("byte for each character")
            << "UserName" << QStringLiteral("n\u00c3\u00a4") << QVariant(QByteArray("n\xC3\xA4"));
        QTest::newRow("Latin-1 bytes")
            << "OldName" << QStringLiteral("n\u00e4") << QVariant(QByteArray("n\xE4"));
        row("empty text", "UserName", "", QVariant(QByteArray()));
        row("write only", "Secret", "key", QVariant(QByteArray("key")));
    }

    void takesText()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, text);
        QFETCH(const QVariant, memory);
        parameter(name)->setFromString(text);
        QCOMPARE(this->memory(name), memory);
        QCOMPARE(m_collection->counters().of(QStringLiteral("@CameraDevice/") + name).writes, 1);
    }

    void takesItsOwnText_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             {"Width", "Register", "Address", "Mac", "Flag", "HighBitDepth", "Gain", "ExposureTime",
              "Gamma", "PixelFormat", "Gain/Alias", "Stop"})
            QTest::newRow(name) << name;
    }

    void takesItsOwnText()
    {
        QFETCH(const QString, name);
        const auto target = parameter(name);
        const QVariant before = memory(name);
        target->setFromString(target->parameterData()->valueText);
        QCOMPARE(memory(name), before);
    }

    void pullsNumbersInUnlessVerified()
    {
        const auto width = parameter(QStringLiteral("Width")).objectCast<IIntegerParameter>();
        QVERIFY(throws<GenICam::InvalidArgumentException>([&] { width->setValue(641, true); }));
        QCOMPARE(width->value(), 640);
        width->setValue(645, false);
        QCOMPARE(width->value(), 644);
        width->setValue(100000, false);
        QCOMPARE(width->value(), 1024);
        const auto gain = parameter(QStringLiteral("Gain")).objectCast<IFloatParameter>();
        QVERIFY(throws<GenICam::InvalidArgumentException>([&] { gain->setValue(20.1); }));
        gain->setValue(20.1, false);
        QCOMPARE(gain->value(), 20.0);
    }

    void keepsSnapshotAndCallsInAgreement()
    {
        const auto gain = parameter(QStringLiteral("Gain")).objectCast<IFloatParameter>();
        gain->setValue(3.5);
        const auto data = gain->parameterData().dynamicCast<const FloatParameterData>();
        QCOMPARE(data->value, gain->value());
        QCOMPARE(data->minimum, gain->minimum());
        QCOMPARE(data->maximum, gain->maximum());
        QVERIFY(data->hasIncrement);
        QCOMPARE(data->increment, 0.1);
        QCOMPARE(data->displayPrecision, 3);
        QVERIFY(gain->isWritable() && data->isWritable);
    }

    void movesLimitsOfOthers()
    {
        const auto offset = parameter(QStringLiteral("OffsetX"));
        const auto maximum = [&offset] {
            return offset->parameterData().dynamicCast<const IntegerParameterData>()->maximum;
        };
        QCOMPARE(maximum(), 384);
        parameter(QStringLiteral("Width"))->setFromString(QStringLiteral("1000"));
        QCOMPARE(maximum(), 24);
        QVERIFY(throws<GenICam::InvalidArgumentException>(
            [&] { offset->setFromString(QStringLiteral("28")); }));
    }

    void pullsInWhatItsLimitsLeaveBehind()
    {
        m_collection->changeOnDevice(cameraPath("SensorWidth"), 501);
        QCOMPARE(memory(QStringLiteral("Width")), QVariant(500LL));
        QCOMPARE(memory(QStringLiteral("OffsetX")), QVariant(0LL));
    }

    void locksFeaturesByOthers()
    {
        const auto exposure = parameter(QStringLiteral("ExposureTime"));
        const auto alias = parameter(QStringLiteral("ExposureTime/Alias"));
        QVERIFY(exposure->isWritable() && alias->isWritable());
        parameter(QStringLiteral("ExposureAuto"))->setFromString(QStringLiteral("Continuous"));
        QVERIFY(!exposure->isWritable() && exposure->parameterData()->isReadable);
        QVERIFY(!alias->isWritable());
        QVERIFY(throws<GenICam::GenericException>(
            [&] { exposure->setFromString(QStringLiteral("100")); }));

        const auto width = parameter(QStringLiteral("Width"));
        const auto command = [this](const char *name) {
            parameter(QString::fromLatin1(name)).objectCast<ICommandParameter>()->execute(true);
        };
        command("Start");
        QVERIFY(!width->isWritable());
        command("Stop");
        QVERIFY(width->isWritable());
    }

    void keepsAValueForEachSelection()
    {
        const auto gain = parameter(QStringLiteral("Gain")).objectCast<IFloatParameter>();
        const auto selector = parameter(QStringLiteral("GainSelector"));
        SnapshotSpy spy(gain);
        QCOMPARE(gain->value(), 0.5);
        selector->setFromString(QStringLiteral("Digital"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(gain->value(), 1.5);
        gain->setValue(2.5);
        selector->setFromString(QStringLiteral("All"));
        QCOMPARE(gain->value(), 0.5);
        selector->setFromString(QStringLiteral("Digital"));
        QCOMPARE(gain->value(), 2.5);
    }

    void keepsTheAliasWithItsFloat_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("value");
        QTest::addColumn<qint64>("alias");
        QTest::newRow("unit, at the lower end") << "ExposureTime" << 1.0 << qint64(1);
        QTest::newRow("unit, within") << "ExposureTime" << 250.0 << qint64(250);
        QTest::newRow("unit, at the upper end") << "ExposureTime" << 1000000.0 << qint64(1000000);
        QTest::newRow("linear, at the lower end") << "Gain" << 0.0 << qint64(0);
        QTest::newRow("linear, within") << "Gain" << 5.0 << qint64(500);
        QTest::newRow("linear, at the upper end") << "Gain" << 20.0 << qint64(2000);
    }

    void keepsTheAliasWithItsFloat()
    {
        QFETCH(const QString, name);
        QFETCH(const double, value);
        QFETCH(const qint64, alias);
        const auto number = parameter(name).objectCast<IFloatParameter>();
        const auto companion =
            parameter(name + QStringLiteral("/Alias")).objectCast<IIntegerParameter>();
        number->setValue(value);
        QCOMPARE(companion->value(), alias);
        number->setValue(number->minimum() + 1.0);
        companion->setValue(alias, true);
        QCOMPARE(number->value(), value);
    }

    void givesAliasesAConstantRange()
    {
        const auto alias = parameter(QStringLiteral("ExposureTime/Alias"));
        const auto data = alias->parameterData().dynamicCast<const IntegerParameterData>();
        QCOMPARE(data->minimum, 1);
        QCOMPARE(data->maximum, 1000000);
        QCOMPARE(data->increment, 1);
        QCOMPARE(data->representation, QStringLiteral("Logarithmic"));
        // The float lies between two values of the companion.
        QCOMPARE(data->value, 5000);
    }

private:
    QSharedPointer<IParameter> parameter(const QString &name)
    {
        return m_collection->parameter(QStringLiteral("@CameraDevice/") + name);
    }

    QVariant memory(const QString &name) const
    {
        return m_collection->deviceValue(QStringLiteral("@CameraDevice/") + name);
    }

    QSharedPointer<SimulatedCollection> m_collection;
};

QTEST_GUILESS_MAIN(TestWriting)
#include "tst_writing.moc"
