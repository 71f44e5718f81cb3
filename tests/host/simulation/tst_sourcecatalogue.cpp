// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testdevice.h"

#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"

#include "host/simulation/generator.h"
#include "host/simulation/simulatedsource.h"
#include "host/simulation/sourcecatalogue.h"

#include <QElapsedTimer>

#include <malloc.h>

using namespace ParameterCollection;
using namespace Simulation;

namespace {

std::size_t allocatedBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

/// The devices that come with the viewer, those of any size for tests, and what they cost.
class TestSourceCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        SourceCatalogue catalogue;
        const auto source = catalogue.makeSource(id);
        QCOMPARE(catalogue.problems(), QStringList());
        source->open();
        const auto collection = source->collection();
        const DeviceDescription &description = collection->description();
        for (const TreeDescription &tree : description.trees())
            QTRY_VERIFY(collection->attachedParameterPaths().contains(tree.path));
        for (int i = 0; i < description.size(); ++i) {
            const auto parameter = collection->parameter(description.fullName(i));
            const bool isRight = parameter->isNull() || agrees(*parameter);
            QVERIFY2(isRight, qPrintable(parameter->fullName()));
        }
    }

    void driftsWhileItIsPolled()
    {
        const auto collection = openCamera();
        const SnapshotSpy spy(collection->parameter(cameraPath("DeviceTemperature")));
        const auto changes = [&] {
            collection->poll(300);
            return spy.count();
        };
        QTRY_VERIFY(changes() >= 3);
    }

    void movesExposureAndGainByItself_data()
    {
        QTest::addColumn<QString>("function");
        QTest::newRow("ExposureTime") << cameraPath("ExposureAuto");
        QTest::newRow("Gain") << cameraPath("GainAuto");
    }

    void movesExposureAndGainByItself()
    {
        QFETCH(const QString, function);
        const QString moved = cameraPath(QTest::currentDataTag());
        const auto collection = openCamera();
        const SnapshotSpy movedSpy(collection->parameter(moved));
        const SnapshotSpy aliasSpy(collection->parameter(moved + QStringLiteral("/Alias")));
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
        const QString function = cameraPath("BalanceWhiteAuto");
        collection->parameter(function)->setFromString(QStringLiteral("Once"));
        QTRY_COMPARE(collection->deviceValue(function), QVariant(QStringLiteral("Off")));
        const auto ratio = [&](const QString &colour) {
            collection->parameter(cameraPath("BalanceRatioSelector"))->setFromString(colour);
            return collection->deviceValue(cameraPath("BalanceRatio"));
        };
        QCOMPARE(ratio(QStringLiteral("Red")), QVariant(1.45));
        QCOMPARE(ratio(QStringLiteral("Green")), QVariant(1.0));
        QCOMPARE(ratio(QStringLiteral("Blue")), QVariant(1.82));
    }

    void generatesAsManyFeaturesAsAskedFor_data()
    {
        QTest::addColumn<int>("features");
        QTest::addColumn<int>("perCategory");
        QTest::addColumn<int>("categories");
        QTest::newRow("none") << 0 << 50 << 0;
        QTest::newRow("a full category") << 50 << 50 << 1;
        QTest::newRow("one more") << 51 << 50 << 2;
        QTest::newRow("one each") << 7 << 1 << 7;
    }

    void generatesAsManyFeaturesAsAskedFor()
    {
        QFETCH(const int, features);
        QFETCH(const int, perCategory);
        const auto collection = generateCollection(features, perCategory);
        const QStringList categories = collection->children(cameraPath("Root"), 0, true);
        QTEST(int(categories.size()), "categories");
        QStringList names;
        for (const QString &category : categories)
            names += collection->children(category, 0, true);
        QCOMPARE(names.removeDuplicates(), 0);
        QCOMPARE(names.size(), features);
        for (const QString &name : qAsConst(names)) {
            const auto feature = collection->parameter(name);
            feature->setFromString(feature->parameterData()->valueText);
        }
    }

    void staysWithinItsBudget()
    {
        constexpr int features = 10000;
        const std::size_t before = allocatedBytes();
        const QElapsedTimer timer = started();
        const auto collection = generateCollection(features);
        const qint64 milliseconds = timer.elapsed();
        const std::size_t each = (allocatedBytes() - before) / features;
        qInfo("10,000 features: %lld ms, %zu bytes each", milliseconds, each);
        QVERIFY(each < 1024);
        const QElapsedTimer opening = started();
        openCamera();
        const qint64 opened = opening.elapsed();
        qInfo("GigE camera: %lld ms", opened);
#ifdef QT_NO_DEBUG
        QVERIFY(milliseconds < 150 && opened < 50);
#endif
    }

private:
    static QElapsedTimer started()
    {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }

    /// Opens a GigE camera of its own for the test.
    QSharedPointer<SimulatedCollection> openCamera()
    {
        m_source = SourceCatalogue().makeSource(QStringLiteral("simulated:gige"));
        m_source->open();
        return m_source->collection();
    }

    template<typename Data> static bool isWithinLimits(const Data &data)
    {
        return data.minimum <= data.value && data.value <= data.maximum;
    }

    static bool agrees(const IParameter &parameter)
    {
        const auto data = parameter.parameterData();
        const auto representation = parameter.node()->property(QStringLiteral("Representation"));
        if (data->type != parameter.type()
            || (!data->isImplemented && (data->isReadable || data->isWritable)))
            return false;
        if (const auto integer = data.dynamicCast<const IntegerParameterData>())
            return isWithinLimits(*integer) && integer->increment > 0 && !representation.isEmpty()
                && integer->representation == representation;
        if (const auto number = data.dynamicCast<const FloatParameterData>())
            return isWithinLimits(*number);
        return true;
    }

    QSharedPointer<SimulatedSource> m_source;
};

QTEST_GUILESS_MAIN(TestSourceCatalogue)
#include "tst_sourcecatalogue.moc"
