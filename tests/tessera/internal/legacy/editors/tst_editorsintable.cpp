// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Connections end with the test function.
// clazy:excludeall=lambda-in-connect

#include "tessera/internal/view/featuretable.h"

#include "host/simulation/simulatedcollection.h"
#include "host/simulation/simulatedsource.h"
#include "host/simulation/sourcecatalogue.h"
#include "support/warningguard.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

using namespace Simulation;

namespace {

enum Row { Switch, Choice, Button, Hex, Slider, FreeFloat, StepFloat, LinearFloat, LogFloat };

// By row.
QStringList names()
{
    return {QStringLiteral("ReverseX"),          QStringLiteral("ExposureAuto"),
            QStringLiteral("AcquisitionStart"),  QStringLiteral("ActionGroupKey"),
            QStringLiteral("GevSCPSPacketSize"), QStringLiteral("CvnTestRatio"),
            QStringLiteral("TriggerDelay"),      QStringLiteral("Gain"),
            QStringLiteral("ExposureTime")};
}

QString path(int row)
{
    return QLatin1String("@CameraDevice/") + names().at(row);
}

// Waiting for doubles needs a tolerance: QTRY_COMPARE waits for the very same one.
bool near(double left, double right)
{
    return std::abs(left - right) < 1e-6;
}

void enterText(QWidget *box, const char *text)
{
    box->setFocus();
    box->findChild<QLineEdit *>() ? box->findChild<QLineEdit *>()->selectAll()
                                  : static_cast<QLineEdit *>(box)->selectAll();
    QTest::keyClicks(box, QString::fromLatin1(text));
    QTest::keyClick(box, Qt::Key_Return);
}

void turnWheel(QWidget *target, int notches)
{
    const QPoint place = target->rect().center();
    QWheelEvent event(place, target->mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only events of the system reach the parents, and sendEvent() would make it one of ours.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(target, &event);
}

} // namespace

/// Each editor in a table of values, by the keys, the mouse and the wheel of its user, over a
/// simulated camera.
class TestEditorsInTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_source = m_catalogue.makeSource(QStringLiteral("simulated:gige"));
        m_source->open();
        m_camera = m_source->collection();
        if (qEnvironmentVariableIsSet("TESSERA_DELAYED_PUBLICATION")) {
            m_camera->setPublication(Publication::Deferred);
        }
        m_table = std::make_unique<FeatureTable>();
        m_table->horizontalHeader()->setStretchLastSection(true);
        m_table->resize(500, 400);
        m_table->show(m_camera, names());
    }

    void cleanup()
    {
        m_table.reset();
        m_camera.reset();
        m_source.reset();
        m_guard.verify();
    }

    void everyKindReachesTheCamera()
    {
        QTest::mouseClick(part<QCheckBox>(Switch), Qt::LeftButton, {},
                          QPoint(8, part<QCheckBox>(Switch)->height() / 2));
        QTRY_COMPARE(onCamera(Switch), QVariant(true));
        QVERIFY(part<QCheckBox>(Switch)->isChecked());

        m_table->edit(value(Hex));
        enterText(part<QLineEdit>(Hex), "0xabc");
        QTRY_COMPARE(onCamera(Hex).toInt(), 0xabc);

        enterText(part<QSpinBox>(Slider), "1001");
        QTRY_COMPARE(onCamera(Slider).toInt(), 1000);
        QTRY_COMPARE(part<QSlider>(Slider)->value(), 1000);

        enterText(part<QDoubleSpinBox>(FreeFloat), "12.75");
        QTRY_COMPARE(onCamera(FreeFloat).toDouble(), 12.75);

        enterText(part<QDoubleSpinBox>(LinearFloat), "12.5");
        QTRY_COMPARE(onCamera(LinearFloat).toDouble(), 12.5);
        QTRY_COMPARE(part<QSlider>(LinearFloat)->value(), 1250);

        enterText(part<QDoubleSpinBox>(LogFloat), "123.4");
        QTRY_COMPARE(onCamera(LogFloat).toDouble(), 123.4);
        QTRY_COMPARE(part<QDoubleSpinBox>(LogFloat)->text(), QStringLiteral("123.4"));

        QTest::keyClick(part<QComboBox>(Choice), Qt::Key_Down);
        QTRY_COMPARE(onCamera(Choice).toString(), QStringLiteral("Once"));
        QTRY_VERIFY(!editor(LogFloat)->isEnabled()); // locked by the automatic

        QTest::mouseClick(part<QToolButton>(Button), Qt::LeftButton);
        QTRY_VERIFY(!editor(Slider)->isEnabled()); // locked while the camera runs
    }

    void stepsReachTheCameraAndComeBack()
    {
        const auto press = [this](Row row, std::initializer_list<Qt::Key> keys) {
            auto *box = part<QAbstractSpinBox>(row);
            box->setFocus();
            for (const Qt::Key key : keys) {
                QTest::keyClick(box, key);
                QCoreApplication::processEvents();
            }
        };
        press(Slider, {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down});
        QTRY_COMPARE(onCamera(Slider).toInt(), 1504);
        QTRY_COMPARE(part<QSpinBox>(Slider)->value(), 1504);

        press(StepFloat, {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Down});
        QTRY_VERIFY(near(onCamera(StepFloat).toDouble(), 50000.0));
        QTRY_COMPARE(part<QDoubleSpinBox>(StepFloat)->value(), 50000.0);

        press(LinearFloat, {Qt::Key_Up, Qt::Key_PageUp});
        QTRY_VERIFY(near(onCamera(LinearFloat).toDouble(), 1.81));
        QTRY_COMPARE(part<QDoubleSpinBox>(LinearFloat)->text(), QStringLiteral("1.81"));

        press(LogFloat, {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down});
        QTRY_VERIFY(near(part<QDoubleSpinBox>(LogFloat)->value(), onCamera(LogFloat).toDouble()));
        QVERIFY(onCamera(LogFloat).toDouble() > 5000.0);
        QVERIFY(onCamera(LogFloat).toDouble() < 5200.0);
    }

    void draggedSliderNeverJumpsBack_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("integer") << int(Slider);
        QTest::newRow("linear float") << int(LinearFloat);
        QTest::newRow("logarithmic float") << int(LogFloat);
    }

    void draggedSliderNeverJumpsBack()
    {
        QFETCH(int, row);
        m_camera->faults().setDelay(5);
        auto *slider = part<QSlider>(row);
        slider->triggerAction(QAbstractSlider::SliderToMinimum);
        QTRY_COMPARE(slider->value(), slider->minimum());
        QVector<int> positions;
        connect(slider, &QSlider::valueChanged, this,
                [&positions](int position) { positions.append(position); });
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, {3, y});
        for (int x = 3; x < slider->width() + 25; x += 25) {
            QMouseEvent move(QEvent::MouseMove, {double(x), double(y)}, Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(slider, &move);
            if (x % 2 == 0) {
                QCoreApplication::processEvents();
            }
        }
        QTest::mouseRelease(slider, Qt::LeftButton, {}, {slider->width(), y});
        QCoreApplication::processEvents();
        disconnect(slider, &QSlider::valueChanged, this, nullptr);
        QVERIFY(positions.size() > 5);
        QVERIFY(std::is_sorted(positions.cbegin(), positions.cend()));
        QTRY_COMPARE(slider->value(), slider->maximum());
        const std::map<int, double> maxima {{Slider, 9000}, {LinearFloat, 36}, {LogFloat, 1e7}};
        QCOMPARE(onCamera(row).toDouble(), maxima.at(row));
    }

    void unpluggingWhileTypingHarmsNothing()
    {
        auto *box = part<QAbstractSpinBox>(Slider);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("300"));
        m_camera->unplug();
        for (const Row row : {Slider, FreeFloat, StepFloat, LinearFloat, LogFloat}) {
            QTest::keyClick(part<QAbstractSpinBox>(row), Qt::Key_Return);
            QTest::keyClick(part<QAbstractSpinBox>(row), Qt::Key_Up);
        }
        part<QSlider>(LogFloat)->setValue(70000);
        m_table->setFocus();
        QCOMPARE(m_camera->counters().total().writes, 0);
        m_camera->revive();
        m_camera->endBatchUpdate();
        enterText(part<QDoubleSpinBox>(LinearFloat), "7");
        QTRY_COMPARE(onCamera(LinearFloat).toDouble(), 7.0);
    }

    void wheelNeedsTheFocus()
    {
        for (const Row row : {Choice, Slider, StepFloat, LinearFloat, LogFloat}) {
            const QVariant before = onCamera(row);
            const int notch = row == Choice ? -1 : 1;
            QWidget *box = row == Choice ? editor(row) : part<QAbstractSpinBox>(row);
            m_table->setFocus();
            turnWheel(box, notch);
            QCOMPARE(onCamera(row), before);
            box->setFocus();
            turnWheel(box, notch);
            QTRY_VERIFY(onCamera(row) != before);
        }
    }

    void lockWhileTypingDisablesTheEditor()
    {
        auto *box = part<QDoubleSpinBox>(LogFloat);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("300"));
        m_camera->changeOnDevice(path(Choice), QStringLiteral("Continuous"));
        QTRY_VERIFY(!editor(LogFloat)->isEnabled());
        QCOMPARE(m_camera->counters().total().writes, 0);
        QTRY_COMPARE(part<QComboBox>(Choice)->currentText(), QStringLiteral("Continuous"));
    }

private:
    template<typename Widget> Widget *part(int row) const
    {
        return m_table->part<Widget>(names().at(row));
    }
    QModelIndex value(int row) const
    {
        return m_table->value(names().at(row));
    }
    QWidget *editor(int row) const
    {
        return m_table->indexWidget(value(row));
    }
    QVariant onCamera(int row) const
    {
        return m_camera->deviceValue(path(row));
    }

    Tests::WarningGuard m_guard;
    SourceCatalogue m_catalogue;
    QSharedPointer<SimulatedSource> m_source;
    QSharedPointer<SimulatedCollection> m_camera;
    std::unique_ptr<FeatureTable> m_table;
};

QTEST_MAIN(TestEditorsInTable)
#include "tst_editorsintable.moc"
