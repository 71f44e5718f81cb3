// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/parametercollection/parameter.h"

#include "host/simulation/description/devicedescription.h"
#include "host/simulation/simulatedcollection.h"
#include "host/simulation/simulatedsource.h"
#include "host/simulation/sourcecatalogue.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace ParameterCollection;
using namespace Simulation;

/// The devices that come with the viewer, and opening and closing them.
class TestSourceCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesItsDevicesWithoutProblems_data();
    void describesItsDevicesWithoutProblems();
};

void TestSourceCatalogue::describesItsDevicesWithoutProblems_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("features");
    QTest::newRow("GigE camera") << "simulated:gige" << 250;
    QTest::newRow("USB camera") << "simulated:usb" << 100;
    QTest::newRow("workbench") << "simulated:workbench" << 5;
}

void TestSourceCatalogue::describesItsDevicesWithoutProblems()
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

QTEST_GUILESS_MAIN(TestSourceCatalogue)
#include "tst_sourcecatalogue.moc"
