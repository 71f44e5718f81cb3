// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/parameternode.h"

#include "host/simulation/description/devicedescription.h"
#include "host/simulation/simulatedsource.h"
#include "host/simulation/sourcecatalogue.h"

#include <QElapsedTimer>

using namespace ParameterCollection;
using namespace Simulation;

/// The devices that come with the viewer, and opening and closing them.
class TestSourceCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesItsDevicesWithoutProblems_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<int>("features");
        QTest::newRow("GigE camera") << "simulated:gige" << 250;
        QTest::newRow("USB camera") << "simulated:usb" << 100;
        QTest::newRow("workbench") << "simulated:workbench" << 5;
    }

    void describesItsDevicesWithoutProblems()
    {
        QFETCH(const QString, id);
        QFETCH(const int, features);
        SourceCatalogue catalogue;
        QElapsedTimer timer;
        timer.start();
        const auto source = catalogue.makeSource(id);
        source->open();
        qInfo("%s: %d features and categories, opened in %lld ms", qPrintable(id),
              source->collection()->description().size(), timer.elapsed());
        QCOMPARE(catalogue.problems(), QStringList());
        QVERIFY(source->collection()->description().size() > features);
    }

    void publishesSnapshotsThatAgreeWithThemselves_data()
    {
        const QStringList ids = SourceCatalogue().ids();
        QTest::addColumn<QString>("id");
        for (const QString &id : ids)
            QTest::newRow(qPrintable(id)) << id;
    }

    void publishesSnapshotsThatAgreeWithThemselves()
    {
        QFETCH(const QString, id);
        const auto source = SourceCatalogue().makeSource(id);
        source->open();
        const auto collection = source->collection();
        const DeviceDescription &description = collection->description();
        for (const TreeDescription &tree : description.trees())
            QTRY_VERIFY(collection->attachedParameterPaths().contains(tree.path));
        for (int i = 0; i < description.size(); ++i) {
            const auto parameter = collection->parameter(description.fullName(i));
            const QByteArray utf8 = parameter->fullName().toUtf8();
            const char *const name = utf8.constData();
            if (parameter->isNull())
                continue;
            const auto data = parameter->parameterData();
            QVERIFY2(data && data->type == parameter->type(), name);
            QVERIFY2(data->isImplemented || (!data->isReadable && !data->isWritable), name);
            const auto representation =
                parameter->node()->property(QStringLiteral("Representation"));
            if (const auto integer = data.dynamicCast<const IntegerParameterData>()) {
                QVERIFY2(integer->minimum <= integer->value && integer->value <= integer->maximum,
                         name);
                QVERIFY2(integer->increment > 0 && !representation.isEmpty(), name);
                QCOMPARE(integer->representation, representation);
            } else if (const auto number = data.dynamicCast<const FloatParameterData>()) {
                QVERIFY2(number->minimum <= number->value && number->value <= number->maximum,
                         name);
                const bool hasStep = number->hasIncrement && number->increment > 0.0;
                const QString alias = parameter->fullName() + QStringLiteral("/Alias");
                // Over many decades no step makes sense.
                const bool isSpread = representation == QLatin1String("Logarithmic");
                QVERIFY2(hasStep || isSpread || !data->isWritable || collection->contains(alias),
                         name);
            }
        }
    }

    void offersEveryKindOfFeature()
    {
        const auto collection = openCamera();
        QSet<QString> representations;
        QSet<int> types;
        QSet<int> modes;
        QSet<int> visibilities;
        for (const FeatureDescription &feature : collection->description().features()) {
            representations.insert(feature.representation);
            types.insert(feature.type);
            modes.insert(static_cast<int>(feature.access));
            visibilities.insert(feature.visibility);
        }
        for (const char *word : {"HexNumber", "PureNumber", "Linear", "Logarithmic", "IPV4Address",
                                 "Boolean", "MACAddress"})
            QVERIFY2(representations.contains(QString::fromLatin1(word)), word);
        QCOMPARE(types.size(), 7);
        QCOMPARE(modes.size(), 5);
        QCOMPARE(visibilities.size(), 4);
    }

    void refusesAnUnknownId()
    {
        SourceCatalogue catalogue;
        try {
            catalogue.makeSource(QStringLiteral("simulated:thermal"));
            QFAIL("nothing was thrown");
        } catch (const Core::Exception::BaseException &exception) {
            const QByteArray line = exception.what();
            QVERIFY2(line.contains("\"simulated:thermal\"") && line.contains("simulated:usb"),
                     line.constData());
        }
    }

    void keepsItsCollectionOverClosingAndOpening()
    {
        const auto source = SourceCatalogue().makeSource(QStringLiteral("simulated:usb"));
        QVERIFY(!source->isOpen());
        QCOMPARE(source->info().deviceClass, QStringLiteral("U3V"));
        const auto collection = source->collection();
        QVERIFY(!collection->parameter(cameraPath("Width")));
        source->open();
        const auto width = collection->parameter(cameraPath("Width"));
        QVERIFY(source->isOpen() && !width->isNull());
        source->close();
        QVERIFY(!source->isOpen() && width->isNull());
        source->open();
        QCOMPARE(source->collection(), collection);
        QVERIFY(!width->isNull());
        QCOMPARE(collection->parameter(cameraPath("Width")), width);
    }

    void driftsWhileItIsPolled()
    {
        const auto collection = openCamera();
        SnapshotSpy spy(collection->parameter(cameraPath("DeviceTemperature")));
        const auto changes = [&] {
            collection->poll(300);
            return spy.count();
        };
        QTRY_VERIFY(changes() >= 3);
    }

    void movesExposureAndGainByItself_data()
    {
        QTest::addColumn<QString>("function");
        QTest::addColumn<QString>("moved");
        QTest::newRow("exposure") << cameraPath("ExposureAuto") << cameraPath("ExposureTime");
        QTest::newRow("gain") << cameraPath("GainAuto") << cameraPath("Gain");
    }

    void movesExposureAndGainByItself()
    {
        QFETCH(const QString, function);
        QFETCH(const QString, moved);
        const auto collection = openCamera();
        SnapshotSpy movedSpy(collection->parameter(moved));
        SnapshotSpy aliasSpy(collection->parameter(moved + QStringLiteral("/Alias")));
        const QVariant before = collection->deviceValue(moved);
        collection->parameter(function)->setFromString(QStringLiteral("Once"));
        QVERIFY(!collection->parameter(moved)->isWritable());
        // The function gives the feature free again when it is done.
        QTRY_COMPARE(collection->deviceValue(function), QVariant(QStringLiteral("Off")));
        QTRY_VERIFY(movedSpy.snapshot()->isWritable);
        QVERIFY(movedSpy.count() > 3 && aliasSpy.count() > 3);
        QVERIFY(collection->deviceValue(moved) != before);
    }

    void balancesAllColours()
    {
        const auto collection = openCamera();
        const auto selector = collection->parameter(cameraPath("BalanceRatioSelector"));
        const auto ratio = collection->parameter(cameraPath("BalanceRatio"));
        collection->parameter(cameraPath("BalanceWhiteAuto"))
            ->setFromString(QStringLiteral("Once"));
        QTRY_COMPARE(collection->deviceValue(cameraPath("BalanceWhiteAuto")),
                     QVariant(QStringLiteral("Off")));
        QStringList ratios;
        ratios.reserve(3);
        for (const char *colour : {"Red", "Green", "Blue"}) {
            selector->setFromString(QString::fromLatin1(colour));
            ratios.append(QString::number(collection->deviceValue(ratio->fullName()).toDouble()));
        }
        QCOMPARE(
            ratios,
            QStringList({QStringLiteral("1.45"), QStringLiteral("1"), QStringLiteral("1.82")}));
    }

    void locksTheImageFormatWhileItAcquires()
    {
        const auto collection = openCamera();
        const auto command = [&collection](const char *name) {
            collection->parameter(cameraPath(name)).objectCast<ICommandParameter>()->execute(true);
        };
        SnapshotSpy format(collection->parameter(cameraPath("PixelFormat")));
        command("AcquisitionStart");
        QTRY_VERIFY(!format.isEmpty() && !format.snapshot()->isWritable);
        command("AcquisitionStop");
        QTRY_VERIFY(format.snapshot()->isWritable);
    }

private:
    /// Opens a GigE camera of its own for the test.
    QSharedPointer<SimulatedCollection> openCamera()
    {
        m_source = SourceCatalogue().makeSource(QStringLiteral("simulated:gige"));
        m_source->open();
        return m_source->collection();
    }

    QSharedPointer<SimulatedSource> m_source;
};

QTEST_GUILESS_MAIN(TestSourceCatalogue)
#include "tst_sourcecatalogue.moc"
