// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/parametercollection/parameter.h"

#include "host/simulation/generator.h"
#include "host/simulation/simulatedcollection.h"
#include "host/simulation/simulatedsource.h"
#include "host/simulation/sourcecatalogue.h"

#include <QElapsedTimer>
#include <QSet>
#include <QTest>

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

/// Collections of any size, and what they cost.
class TestGenerator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesAsManyFeaturesAsAskedFor_data()
    {
        QTest::addColumn<int>("features");
        QTest::addColumn<int>("perCategory");
        QTest::addColumn<int>("categories");
        QTest::newRow("none") << 0 << 50 << 0;
        QTest::newRow("one") << 1 << 50 << 1;
        QTest::newRow("a full category") << 50 << 50 << 1;
        QTest::newRow("one more") << 51 << 50 << 2;
        QTest::newRow("one each") << 7 << 1 << 7;
    }

    void makesAsManyFeaturesAsAskedFor()
    {
        QFETCH(const int, features);
        QFETCH(const int, perCategory);
        const auto collection = generateCollection(features, perCategory);
        const QStringList categories =
            collection->children(QStringLiteral("@CameraDevice/Root"), 0, true);
        QTEST(int(categories.size()), "categories");
        QSet<QString> names;
        for (const QString &category : categories) {
            const QStringList children = collection->children(category, 0, true);
            names += QSet<QString>(children.cbegin(), children.cend());
        }
        QCOMPARE(names.size(), features);
    }

    void makesFeaturesThatWork()
    {
        const auto collection = generateCollection(9);
        QSet<int> types;
        for (int i = 1; i <= 9; ++i) {
            const auto feature =
                collection->parameter(QStringLiteral("@CameraDevice/Feature%1").arg(i));
            types.insert(feature->type());
            QVERIFY(feature->isWritable());
            feature->setFromString(feature->parameterData()->valueText);
        }
        QCOMPARE(types.size(), 6);
    }

    void staysWithinItsBudget()
    {
        constexpr int features = 10000;
        const std::size_t before = allocatedBytes();
        QElapsedTimer timer;
        timer.start();
        const auto collection = generateCollection(features);
        const qint64 milliseconds = timer.elapsed();
        const std::size_t each = (allocatedBytes() - before) / features;
        QVERIFY(collection->contains(QStringLiteral("@CameraDevice/Feature10000")));
        qInfo("10,000 features: %lld ms, %zu bytes each", milliseconds, each);
        QVERIFY2(each < 1024, qPrintable(QString::number(each)));
#ifdef QT_NO_DEBUG
        QVERIFY2(milliseconds < 150, qPrintable(QString::number(milliseconds)));
#endif
    }

    void opensTheCameraWithinItsBudget()
    {
        QElapsedTimer timer;
        timer.start();
        const auto source = SourceCatalogue().makeSource(QStringLiteral("simulated:gige"));
        source->open();
        const qint64 milliseconds = timer.elapsed();
        qInfo("GigE camera: %lld ms", milliseconds);
#ifdef QT_NO_DEBUG
        QVERIFY2(milliseconds < 50, qPrintable(QString::number(milliseconds)));
#endif
    }
};

QTEST_GUILESS_MAIN(TestGenerator)
#include "tst_generator.moc"
