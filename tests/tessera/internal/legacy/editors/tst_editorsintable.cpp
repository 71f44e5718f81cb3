// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Connections end with the test function.
// clazy:excludeall=lambda-in-connect

#include "tessera/internal/view/featuretable.h"

#include "host/simulation/simulatedcollection.h"
#include "host/simulation/simulatedsource.h"
#include "host/simulation/sourcecatalogue.h"
#include "support/warningguard.h"

#include <QAbstractSpinBox>
#include <QHeaderView>
#include <QMouseEvent>
#include <QSlider>
#include <QWheelEvent>

#include <algorithm>
#include <memory>

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
            m_camera->setPublication(Simulation::Publication::Deferred);
        }
        m_table = std::make_unique<FeatureTable>();
        m_table->horizontalHeader()->setStretchLastSection(true);
        m_table->resize(500, 400);
        m_table->show(m_camera, {m_choice, m_integer, m_step, m_linear, m_logarithmic});
    }

    void cleanup()
    {
        m_table.reset();
        m_camera.reset();
        m_source.reset();
        m_guard.verify();
    }

    void stepsReachTheCameraAndComeBack_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("integer") << m_integer << "1504";
        QTest::newRow("step") << m_step << "0.5";
        QTest::newRow("linear") << m_linear << "0.01";
        QTest::newRow("logarithmic") << m_logarithmic << "5048.0";
    }

    void stepsReachTheCameraAndComeBack()
    {
        QFETCH(QString, name);
        auto *box = m_table->part<QAbstractSpinBox>(name);
        box->setFocus();
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down}) {
            QTest::keyClick(box, key);
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(box->text().toDouble(), onCamera(name).toDouble());
        QTEST(box->text(), "text");
    }

    void draggedSliderNeverJumpsBack_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("maximum");
        QTest::newRow("integer") << m_integer << 9000.0;
        QTest::newRow("linear") << m_linear << 36.0;
        QTest::newRow("logarithmic") << m_logarithmic << 1e7;
    }

    void draggedSliderNeverJumpsBack()
    {
        QFETCH(QString, name);
        m_camera->faults().setDelay(5);
        auto *slider = m_table->part<QSlider>(name);
        slider->triggerAction(QAbstractSlider::SliderToMinimum);
        QTRY_COMPARE(slider->value(), slider->minimum());
        QVector<int> positions;
        connect(slider, &QSlider::valueChanged, this,
                [&positions](int position) { positions.append(position); });
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, {3, y});
        for (int x = 3; x < slider->width() + 25; x += 25) {
            QMouseEvent move(QEvent::MouseMove, QPoint(x, y), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
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
        QTEST(onCamera(name).toDouble(), "maximum");
    }

    void wheelNeedsTheFocus()
    {
        for (const QString &name : {m_choice, m_integer, m_step, m_linear, m_logarithmic}) {
            const QVariant before = onCamera(name);
            QWidget *box = m_table->part<QAbstractSpinBox>(name);
            box = box ? box : m_table->editor(name);
            m_table->setFocus();
            turnWheel(box, name == m_choice ? -120 : 120);
            QCOMPARE(onCamera(name), before);
            box->setFocus();
            turnWheel(box, name == m_choice ? -120 : 120);
            QTRY_VERIFY(onCamera(name) != before);
        }
    }

private:
    static void turnWheel(QWidget *target, int angle)
    {
        const QPoint place = target->rect().center();
        QWheelEvent event(place, target->mapToGlobal(place), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        // Only events of the system reach the parents, and sendEvent() would make it one of ours.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(target, &event);
    }
    static QString pathOf(const QString &name)
    {
        return QLatin1String("@CameraDevice/") + name;
    }
    QVariant onCamera(const QString &name) const
    {
        return m_camera->deviceValue(pathOf(name));
    }

    const QString m_choice = QStringLiteral("ExposureAuto");
    const QString m_integer = QStringLiteral("GevSCPSPacketSize");
    const QString m_step = QStringLiteral("TriggerDelay");
    const QString m_linear = QStringLiteral("Gain");
    const QString m_logarithmic = QStringLiteral("ExposureTime");
    Tests::WarningGuard m_guard;
    Simulation::SourceCatalogue m_catalogue;
    QSharedPointer<Simulation::SimulatedSource> m_source;
    QSharedPointer<Simulation::SimulatedCollection> m_camera;
    std::unique_ptr<FeatureTable> m_table;
};

QTEST_MAIN(TestEditorsInTable)
#include "tst_editorsintable.moc"
