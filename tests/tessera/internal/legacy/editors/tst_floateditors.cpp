// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorsnapshots.h"

#include "plugin/contract/parametercollection/parameter.h"

#include "internal/legacy/editors/floateditor.h"
#include "internal/legacy/editors/floatslidereditor.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>

#include <cmath>
#include <memory>

using namespace ParameterCollection;

/// The two editors of a float: a box alone, and one beside a slider.
class TestFloatEditors : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsValueAndRange_data()
    {
        QTest::addColumn<QSharedPointer<const ParameterData>>("snapshot");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("toolTip");
        const auto row = [](const char *name, QSharedPointer<const ParameterData> snapshot,
                            const char *text, const char *toolTip) {
            QTest::newRow(name) << snapshot << QString::fromLatin1(text)
                                << QString::fromLatin1(toolTip);
        };
        row("step", floatSnapshot(1234.5, 0, 10000, 2), "1234.5", "Range: 0..10000 (Increment: 2)");
        row("small step", floatSnapshot(0.5, 0, 0.9, 0.4), "0.5", "Range: 0..1");
        row("no decimals", floatSnapshot(2, -5, 5, 0, 0), "2", "Range: -5..5");
        row("wide", floatSnapshot(2, -1e308, 1e308), "2.0", "Range: -1e+308..1e+308");
    }

    void showsValueAndRange()
    {
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        update(snapshot);
        QTEST(m_box->text(), "text");
        QTEST(m_editor->toolTip(), "toolTip");
    }

    void ignoresUnusableSnapshots_data()
    {
        using Snapshot = QSharedPointer<const ParameterData>;
        QTest::addColumn<Snapshot>("snapshot");
        QTest::addColumn<QString>("entry");
        const auto unreadable = floatSnapshot(1, 0, 10);
        unreadable->isReadable = false;
        QTest::newRow("null") << Snapshot() << "(Float|Gain) is called with non-float node";
        QTest::newRow("unreadable") << Snapshot(unreadable) << "Non-readable comboBox";
        QTest::newRow("contradicting limits") << Snapshot(floatSnapshot(5, 10, 0)) << "";
        QTest::newRow("outside its limits") << Snapshot(floatSnapshot(11, 0, 10)) << "";
        QTest::newRow("not a number") << Snapshot(floatSnapshot(std::nan(""), 0, 10)) << "";
    }

    void ignoresUnusableSnapshots()
    {
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        QFETCH(QString, entry);
        update(floatSnapshot(5, 0, 100, 0.5));
        openGain();
        if (!entry.isEmpty()) {
            expectFault("floatEditor", QRegularExpression(entry));
            expectFault("floatSliderEditor", QRegularExpression(entry));
        }
        update(snapshot);
        showGain(snapshot);
        publishAlias(1001);
        const auto boxes = m_window->findChildren<QDoubleSpinBox *>();
        for (const QDoubleSpinBox *box : boxes) {
            QCOMPARE(box->text(), QStringLiteral("5.0"));
            QCOMPARE(box->maximum(), 100.0);
        }
        QCOMPARE(m_slider->value(), 40);
    }

    void oneAnswerPassesAfterWhatTheUserSet()
    {
        update(floatSnapshot(3.5, 0, 100, 1));
        m_box->setFocus();
        const auto locked = floatSnapshot(4.5, 0, 50, 1);
        locked->isWritable = false;
        update(locked);
        QCOMPARE(m_box->text(), QStringLiteral("3.5"));
        QTest::keyClick(m_box, Qt::Key_Return);
        update(floatSnapshot(5.5, 0, 100, 1));
        QCOMPARE(m_box->text(), QStringLiteral("5.5"));
        update(floatSnapshot(6.5, 0, 100, 1));
        QCOMPARE(m_box->text(), QStringLiteral("5.5"));
        m_other->setFocus();
        update(locked);
        QCOMPARE(m_box->text(), QStringLiteral("4.5"));
        QVERIFY(!m_editor->isEnabled());
    }

    void stepsFromTheDevicesValue_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<double>("device");
        QTest::addColumn<QString>("written");
        QTest::newRow("down") << Qt::Key_Down << 20.0 << "19.75";
        QTest::newRow("page past the end") << Qt::Key_PageUp << 970.0 << "1000";
        QTest::newRow("page past the start") << Qt::Key_PageDown << 30.0 << "0";
    }

    void stepsFromTheDevicesValue()
    {
        QFETCH(Qt::Key, key);
        QFETCH(double, device);
        QFETCH(QString, written);
        update(floatSnapshot(10, 0, 1000, 0.25));
        node("Float").number = device;
        node("Float").onWrite = Tests::Fault::Unknown;
        QTest::keyClick(m_box, key);
        QCOMPARE(node("Float").writes, QStringList {written});
        QCOMPARE(m_box->text(), QStringLiteral("10.0")); // until the device answers
    }

    void commitsWhatWasTypedInTheLocaleOfTheUser()
    {
        m_window->setLocale(QLocale(QStringLiteral("de_DE")));
        update(floatSnapshot(1234.5, 0, 5000, 1, 2));
        QCOMPARE(m_box->text(), QStringLiteral("1234,5"));
        QSignalSpy commits(m_editor, &FloatEditor::boxValueChanged);
        m_box->setFocus();
        m_box->selectAll();
        QTest::keyClicks(m_box, QStringLiteral("12,3456"));
        QCOMPARE(commits.count(), 0);
        QTest::keyClick(m_box, Qt::Key_Enter);
        QCOMPARE(m_editor->editorValue(), QVariant(12.34));
        node("Float").maximum = 10; // the device's own limits hold
        QCOMPARE(m_editor->editorValue(), QVariant(10.0));
        m_other->setFocus();
        QCOMPARE(commits.count(), 2);
        m_box->setFocus();
        QTest::keyClicks(m_box, QStringLiteral("9"));
        QTest::keyClick(m_box, Qt::Key_Escape);
        QCOMPARE(m_box->text(), QStringLiteral("12,34"));
    }

    void losesItsArrowsForGoodWithoutAnIncrement()
    {
        update(floatSnapshot(5, 0, 10, 1));
        QCOMPARE(m_box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
        update(floatSnapshot(5, 0, 10, 0));
        QTest::keyClick(m_box, Qt::Key_Up);
        QVERIFY(node("Float").writes.isEmpty());
        update(floatSnapshot(5, 0, 10, 1));
        QCOMPARE(m_box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        const FloatEditor pure(nullptr, QStringLiteral("PureNumber"));
        QCOMPARE(pure.findChild<QDoubleSpinBox *>()->buttonSymbols(), QAbstractSpinBox::NoButtons);
    }

    void showsFloatInTheBoxAndAliasOnTheSlider()
    {
        FloatSliderEditor *editor = openGain();
        QCOMPARE(m_box->text(), QStringLiteral("5.0"));
        QCOMPARE(m_slider->value(), 40);
        QCOMPARE(editor->toolTip(), QStringLiteral("Range: 0.0..100.0 (Increment: 0.5)"));
        showGain(floatSnapshot(5, 2, 50, 0.5));
        QCOMPARE(editor->toolTip(), QStringLiteral("Range: 2.0..50.0 (Increment: 0.5)"));
        QCOMPARE(m_box->maximum(), 50.0);
        node("Gain").maximum = 3.0;
        QCOMPARE(editor->editorValue(), QVariant(3.0));

        node("Gain/Alias").number = 60; // the device is ahead of its snapshot
        publishAlias(41);
        QCOMPARE(m_slider->value(), 41);
        QVERIFY(aliasWrites().isEmpty()); // shown, not written back
        QCOMPARE(m_box->text(), QStringLiteral("5.0"));
    }

    void sliderWritesTheAliasOnItsGrid()
    {
        FloatSliderEditor *editor = openGain();
        QSignalSpy commits(editor, &FloatSliderEditor::boxValueChanged);
        publishAlias(40, 7);
        m_slider->setValue(50);
        node("Gain/Alias").number = 63;
        m_slider->setValue(63); // what the device has already
        node("Gain/Alias").onWrite = Tests::Fault::Host;
        QTest::keyClick(m_box, Qt::Key_Up);
        QTest::keyClick(m_box, Qt::Key_PageUp);
        QCOMPARE(aliasWrites().join(QLatin1Char(' ')), QStringLiteral("49 64 113"));
        QCOMPARE(commits.count(), 0);
        QVERIFY(node("Gain").writes.isEmpty());
    }

    void logarithmicStepEndsWithTheDevicesAnswer()
    {
        Tests::FakeNode &device = node("ExposureTime");
        node("ExposureTime/Alias").number = 200.0;
        FloatSliderEditor *editor = makeSlider("ExposureTime");
        const auto show = [&](double value) {
            editor->updateEditor(pair("ExposureTime", floatSnapshot(value, 100, 1e6, 0, 1)));
        };
        show(200.0);
        QCOMPARE(m_slider->maximum(), 100000); // a scale of its own
        connect(m_collection->parameter(pathOf("ExposureTime")).data(),
                &IParameter::parameterDataChangedDecoupled, editor, [&] { show(device.number); });
        m_box->setFocus();
        device.number = 201.7; // what the alias makes of the step
        QTest::keyClick(m_box, Qt::Key_Up);
        QCOMPARE(m_box->value(), 203.0);
        QCOMPARE(node("ExposureTime/Alias").writes.size(), 1);
        QTRY_COMPARE(m_box->value(), 201.7);
    }

    void typingIsNotDisturbedButCanBeLocked()
    {
        FloatSliderEditor *editor = openGain();
        m_box->setFocus();
        m_box->selectAll();
        QTest::keyClicks(m_box, QStringLiteral("7"));
        showGain(floatSnapshot(9, 0, 100, 0.5));
        publishAlias(90); // its float is let through
        QCOMPARE(m_box->text(), QStringLiteral("7"));
        showGain(floatSnapshot(9, 0, 100, 0.5));
        QCOMPARE(m_box->text(), QStringLiteral("9.0"));
        const auto locked = floatSnapshot(10, 0, 100, 0.5);
        locked->isWritable = false;
        showGain(locked);
        QVERIFY(!editor->isEnabled());
        showGain(floatSnapshot(10, 0, 100, 0.5)); // without the focus
        QCOMPARE(m_box->text(), QStringLiteral("10.0"));
        QVERIFY(editor->isEnabled());
    }

    void staysUnsetWithoutAnAlias()
    {
        FloatSliderEditor *editor = makeSlider("Alone");
        QSignalSpy commits(editor, &FloatSliderEditor::boxValueChanged);
        expectFault("floatSliderEditor", QStringLiteral("Alias node is not of type integer."));
        editor->updateEditor(pair("Alone", floatSnapshot(50, 10, 90)));
        m_slider->setValue(3);
        m_box->setFocus();
        m_other->setFocus();
        QCOMPARE(commits.count(), 0);
        QVERIFY(node("Alone").writes.isEmpty());
    }

private:
    void prepare() override
    {
        EditorTest::prepare();
        m_window = std::make_unique<QWidget>();
        m_editor = new FloatEditor(m_window.get(), QStringLiteral("Linear"));
        m_box = m_editor->findChild<QDoubleSpinBox *>();
        m_other = new QLineEdit(m_window.get());
        m_window->show();
        m_other->setFocus();
        QApplication::setActiveWindow(m_window.get());
    }
    void release() override
    {
        m_window.reset();
    }
    void update(const QSharedPointer<const ParameterData> &snapshot)
    {
        m_editor->updateEditor(pair("Float", snapshot));
    }

    FloatSliderEditor *makeSlider(const char *name)
    {
        auto *editor = new FloatSliderEditor(m_collection, m_window.get());
        editor->setObjectName(QString::fromLatin1(name));
        editor->show();
        m_box = editor->findChild<QDoubleSpinBox *>();
        m_slider = editor->findChild<QSlider *>();
        return editor;
    }
    FloatSliderEditor *openGain()
    {
        m_gain = makeSlider("Gain");
        showGain(floatSnapshot(5, 0, 100, 0.5));
        publishAlias(40);
        return m_gain;
    }
    void showGain(const QSharedPointer<const ParameterData> &snapshot)
    {
        m_gain->updateEditor(pair("Gain", snapshot));
    }
    void publishAlias(int value, int increment = 1)
    {
        node("Gain/Alias").send(integerSnapshot(value, 0, 1000, increment));
    }
    QStringList aliasWrites()
    {
        return node("Gain/Alias").writes;
    }

    std::unique_ptr<QWidget> m_window;
    FloatEditor *m_editor = nullptr; // by parent
    FloatSliderEditor *m_gain = nullptr; // by parent
    QDoubleSpinBox *m_box = nullptr; // by parent; of the editor made last
    QSlider *m_slider = nullptr; // by parent
    QLineEdit *m_other = nullptr; // by parent
};

QTEST_MAIN(TestFloatEditors)
#include "tst_floateditors.moc"
