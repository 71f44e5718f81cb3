// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorsnapshots.h"

#include "internal/legacy/editors/floateditor.h"
#include "support/warningguard.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>
#include <memory>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

namespace {

const QString floatLog = QStringLiteral("vantrel.viewer.plugins.tessera.floatEditor");
constexpr double largest = std::numeric_limits<double>::max();

} // namespace

class TestFloatEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_camera = std::make_unique<EditorCamera>();
        m_camera->node("Float").maximum = 1000.0;
        m_window = std::make_unique<QWidget>();
        m_editor = new FloatEditor(m_window.get(), QStringLiteral("Linear"));
        m_box = m_editor->findChild<QDoubleSpinBox *>();
        m_other = new QLineEdit(m_window.get());
        m_window->show();
        m_other->setFocus();
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_guard.verify();
    }

    void showsValues_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<int>("precision");
        QTest::addColumn<QString>("text");
        QTest::newRow("fraction") << 1.5 << 10.0 << 3 << QStringLiteral("1.5");
        QTest::newRow("whole") << 2.0 << 10.0 << 3 << QStringLiteral("2.0");
        QTest::newRow("no decimals") << 2.0 << 10.0 << 0 << QStringLiteral("2");
        QTest::newRow("no groups") << 1234.5 << 1e6 << 3 << QStringLiteral("1234.5");
        QTest::newRow("tiny") << 5e-324 << 1.0 << 2 << QStringLiteral("0.0");
        QTest::newRow("huge") << 1e300 << largest << 0 << QString::number(1e300, 'f', 0);
    }

    void showsValues()
    {
        QFETCH(double, value);
        QFETCH(double, maximum);
        QFETCH(int, precision);
        update(floatSnapshot(value, 0, maximum, 0, precision));
        QTEST(m_box->text(), "text");
    }

    void toolTipTellsTheOrderOfTheRange_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("increment");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("step") << 0.0 << 1000.0 << 2.0
                              << QStringLiteral("Range: 0..1000 (Increment: 2)");
        QTest::newRow("small step") << 0.0 << 0.9 << 0.4 << QStringLiteral("Range: 0..1");
        QTest::newRow("no step") << -5.0 << 5.0 << 0.0 << QStringLiteral("Range: -5..5");
        QTest::newRow("wide") << -1e308 << 1e308 << 0.0 << QStringLiteral("Range: -1e+308..1e+308");
    }

    void toolTipTellsTheOrderOfTheRange()
    {
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(double, increment);
        update(floatSnapshot(0.0, minimum, maximum, increment));
        QTEST(m_editor->toolTip(), "toolTip");
        QCOMPARE(m_box->toolTip(), m_editor->toolTip());
    }

    void plainWidgetTellsItsRangeExactly()
    {
        DoubleSpinBox widget;
        widget.setRangeStepAndIncrement(0.0, 1.25, 0.25);
        widget.updateToolTip();
        QCOMPARE(widget.toolTip(), QStringLiteral("Range: 0.0..1.25 (Increment: 0.25)"));
        widget.setMaximum(1.0);
        widget.setDecimals(1);
        QCOMPARE(widget.toolTip(), QStringLiteral("Range: 0.0..1.0 (Increment: 0.3)"));
    }

    void ignoresUnusableSnapshots_data()
    {
        const auto contradicting = floatSnapshot(5, 10, 0);
        const auto outside = floatSnapshot(11, 0, 10);
        const auto noNumber = floatSnapshot(std::nan(""), 0, 10);
        const auto unreadable = floatSnapshot(1, 0, 10);
        unreadable->isReadable = false;
        const QString foreign = QStringLiteral("Float is called with non-float node");
        QTest::addColumn<QSharedPointer<const ParameterData>>("snapshot");
        QTest::addColumn<QString>("entry");
        const auto addRow = [](const char *name, QSharedPointer<const ParameterData> data,
                               const QString &entry) { QTest::newRow(name) << data << entry; };
        addRow("null", {}, foreign);
        addRow("integer", integerSnapshot(1, 0, 2), foreign);
        addRow("unreadable", unreadable, QStringLiteral("Non-readable comboBox: Float"));
        addRow("contradicting limits", contradicting, {});
        addRow("outside its limits", outside, {});
        addRow("not a number", noNumber, {});
    }

    void ignoresUnusableSnapshots()
    {
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        QFETCH(QString, entry);
        update(floatSnapshot(3.5, 0, 100, 1));
        if (!entry.isEmpty()) {
            m_guard.expectLogEntry(ELogLevel::Fault, floatLog, entry);
        }
        update(snapshot);
        QCOMPARE(m_box->text(), QStringLiteral("3.5"));
        QCOMPARE(m_editor->maximum(), 100.0);
        QVERIFY(m_editor->isEnabled());
    }

    void typingIsNotDisturbed()
    {
        update(floatSnapshot(3.5, 0, 100, 1));
        m_box->setFocus();
        QTest::keyClicks(m_box, QStringLiteral("4"));
        const QString typed = m_box->text();
        const auto locked = floatSnapshot(7, 0, 50, 1);
        locked->isWritable = false;
        update(locked);
        QCOMPARE(m_box->text(), typed);
        QVERIFY(m_editor->isEnabled());
        QCOMPARE(m_editor->maximum(), 100.0);
        m_other->setFocus();
        update(locked);
        QCOMPARE(m_box->text(), QStringLiteral("7.0"));
        QVERIFY(!m_editor->isEnabled());
    }

    void oneAnswerPassesAfterWhatTheUserSet_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("return") << int(Qt::Key_Return);
        QTest::newRow("step") << int(Qt::Key_Up);
        QTest::newRow("page") << int(Qt::Key_PageDown);
    }

    void oneAnswerPassesAfterWhatTheUserSet()
    {
        QFETCH(int, key);
        update(floatSnapshot(3.5, 0, 100, 1));
        m_box->setFocus();
        update(floatSnapshot(4.5, 0, 100, 1));
        QCOMPARE(m_box->text(), QStringLiteral("3.5"));
        QTest::keyClick(m_box, Qt::Key(key));
        update(floatSnapshot(5.5, 0, 100, 1));
        QCOMPARE(m_box->text(), QStringLiteral("5.5"));
        update(floatSnapshot(6.5, 0, 100, 1));
        QCOMPARE(m_box->text(), QStringLiteral("5.5"));
    }

    void stepsFromTheDevicesValue_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<double>("device");
        QTest::addColumn<QString>("written");
        QTest::newRow("up") << int(Qt::Key_Up) << 20.0 << QStringLiteral("20.25");
        QTest::newRow("down") << int(Qt::Key_Down) << 20.0 << QStringLiteral("19.75");
        QTest::newRow("page up") << int(Qt::Key_PageUp) << 20.0 << QStringLiteral("70");
        QTest::newRow("page down") << int(Qt::Key_PageDown) << 70.0 << QStringLiteral("20");
        QTest::newRow("page past the end")
            << int(Qt::Key_PageUp) << 970.0 << QStringLiteral("1000");
        QTest::newRow("page past the start")
            << int(Qt::Key_PageDown) << 30.0 << QStringLiteral("0");
    }

    void stepsFromTheDevicesValue()
    {
        QFETCH(int, key);
        QFETCH(double, device);
        QFETCH(QString, written);
        m_camera->node("Float").minimum = 0.0;
        update(floatSnapshot(10, 0, 1000, 0.25));
        m_camera->node("Float").number = device;
        QSignalSpy commits(m_editor, &FloatEditor::boxValueChanged);
        QTest::keyClick(m_box, Qt::Key(key));
        QCOMPARE(m_camera->node("Float").writes, QStringList {written});
        QCOMPARE(m_box->text(), QStringLiteral("10.0")); // until the device answers
        QCOMPARE(commits.count(), 0);
    }

    void pagesAtLeastTwoIncrements()
    {
        update(floatSnapshot(5, 0, 10, 1));
        m_camera->node("Float").number = 5;
        QTest::keyClick(m_box, Qt::Key_PageUp);
        QCOMPARE(m_camera->node("Float").writes, QStringList {QStringLiteral("7")});
    }

    void refusedStepsChangeNothing()
    {
        update(floatSnapshot(5, 0, 10, 1));
        m_camera->node("Float").onWrite = Tests::Fault::Unknown;
        QTest::keyClick(m_box, Qt::Key_Up);
        QCOMPARE(m_camera->node("Float").writes.size(), 1);
        QCOMPARE(m_box->text(), QStringLiteral("5.0"));
    }

    void losesItsArrowsForGoodWithoutAnIncrement()
    {
        update(floatSnapshot(5, 0, 10, 1));
        QCOMPARE(m_box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
        update(floatSnapshot(5, 0, 10, 0));
        QCOMPARE(m_box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QTest::keyClick(m_box, Qt::Key_Up);
        QVERIFY(m_camera->node("Float").writes.isEmpty());
        update(floatSnapshot(5, 0, 10, 1));
        QCOMPARE(m_box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QTest::keyClick(m_box, Qt::Key_Up);
        QCOMPARE(m_camera->node("Float").writes.size(), 1);

        const FloatEditor pure(nullptr, QStringLiteral("PureNumber"));
        QCOMPARE(pure.findChild<QDoubleSpinBox *>()->buttonSymbols(), QAbstractSpinBox::NoButtons);
    }

    void handsOutTheValueWithinLiveLimits()
    {
        Tests::FakeNode &device = m_camera->node("Float");
        update(floatSnapshot(90, 0, 1000, 1));
        QCOMPARE(m_editor->editorValue(), QVariant(90.0));
        device.maximum = 80;
        QCOMPARE(m_editor->editorValue(), QVariant(80.0));
        device.minimum = 95;
        device.maximum = 99;
        QCOMPARE(m_editor->editorValue(), QVariant(95.0));
    }

    void commitsWhatWasTyped()
    {
        update(floatSnapshot(5, 0, 100, 1, 2));
        QSignalSpy commits(m_editor, &FloatEditor::boxValueChanged);
        m_box->setFocus();
        m_box->selectAll();
        QTest::keyClicks(m_box, QStringLiteral("12.3456"));
        QCOMPARE(commits.count(), 0);
        QTest::keyClick(m_box, Qt::Key_Enter);
        QCOMPARE(commits.count(), 1);
        QCOMPARE(m_editor->editorValue(), QVariant(12.34));
        m_other->setFocus();
        QCOMPARE(commits.count(), 2);
        m_box->setFocus();
        QTest::keyClicks(m_box, QStringLiteral("9"));
        QTest::keyClick(m_box, Qt::Key_Escape);
        QCOMPARE(m_box->text(), QStringLiteral("12.34"));
    }

    void commitsNothingBeforeItShowedAValue()
    {
        QSignalSpy commits(m_editor, &FloatEditor::boxValueChanged);
        m_box->setFocus();
        m_other->setFocus();
        QCOMPARE(commits.count(), 0);
        m_box->setFocus();
        QTest::keyClicks(m_box, QStringLiteral("9"));
        m_other->setFocus();
        QCOMPARE(commits.count(), 1);
        QTest::keyClick(m_box, Qt::Key_Up); // no parameter yet
    }

    void speaksTheLocaleOfItsUser()
    {
        m_window->setLocale(QLocale(QStringLiteral("de_DE")));
        update(floatSnapshot(1234.5, 0, 5000, 1));
        QCOMPARE(m_box->text(), QStringLiteral("1234,5"));
        m_box->setFocus();
        m_box->selectAll();
        QTest::keyClicks(m_box, QStringLiteral("2,75"));
        QTest::keyClick(m_box, Qt::Key_Return);
        QCOMPARE(m_editor->editorValue(), QVariant(2.75));
    }

private:
    void update(const QSharedPointer<const ParameterData> &snapshot)
    {
        m_editor->updateEditor(m_camera->pair("Float", snapshot));
    }

    Tests::WarningGuard m_guard;
    std::unique_ptr<EditorCamera> m_camera;
    std::unique_ptr<QWidget> m_window;
    FloatEditor *m_editor = nullptr; // by parent
    QDoubleSpinBox *m_box = nullptr; // by parent
    QLineEdit *m_other = nullptr; // by parent
};

QTEST_MAIN(TestFloatEditor)
#include "tst_floateditor.moc"
