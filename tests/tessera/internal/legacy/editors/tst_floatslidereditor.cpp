// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorsnapshots.h"

#include "plugin/contract/parametercollection/parameter.h"

#include "internal/legacy/editors/floatslidereditor.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>

#include <memory>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;
using Mode = ETwoModeDoubleComboSliderMode;

namespace {

const QString sliderLog = QStringLiteral("vantrel.viewer.plugins.tessera.floatSliderEditor");

} // namespace

class TestFloatSliderEditor : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void linearWidgetStepsByTheSlider()
    {
        TwoModeDoubleComboSlider widget(nullptr, Mode::Linear);
        widget.initControls(0.0, 1.0, 500, 10, 1010, 10);
        auto *slider = widget.findChild<QSlider *>();
        QCOMPARE(slider->minimum(), 10);
        const QSignalSpy ranges(&widget, &DoubleComboSlider::rangeChanged);
        widget.setProperty("intMinimum", 0);
        QCOMPARE(ranges.value(0), QVariantList({0, 1010}));
        QCOMPARE(slider->minimum(), 0);
        QSignalSpy changes(&widget, &TwoModeDoubleComboSlider::valueChanged);
        auto *box = widget.findChild<QDoubleSpinBox *>();
        widget.setValue(0.5);
        QTest::keyClick(box, Qt::Key_PageUp);
        QTest::keyClick(box, Qt::Key_Down);
        const QList<QVariantList> expected {{550}, {540}};
        QCOMPARE(QList<QVariantList>(changes), expected);
        QCOMPARE(box->value(), 0.5); // waits for the float's snapshot
        widget.setRangeStepAndIncrement(1, 1000, 10);
        QCOMPARE(widget.validIntValue(123), 121);
        QCOMPARE(slider->pageStep(), 41);
        widget.setMaximum(0.25);
        QCOMPARE(box->maximum(), 0.25);
    }

    void logarithmicWidgetKeepsWhatItIsGiven()
    {
        TwoModeDoubleComboSlider widget(nullptr, Mode::Logarithmic);
        widget.initControls(100.0, 1e6, 1000, 100, 1000000, 1);
        auto *slider = widget.findChild<QSlider *>();
        QCOMPARE(slider->maximum(), 100000);
        QCOMPARE(widget.intValue(), int(widget.sliderToInt(slider->value())));
        QSignalSpy changes(&widget, &TwoModeDoubleComboSlider::valueChanged);
        widget.setIntValue(777);
        slider->setValue(0);
        const QList<QVariantList> expected {{777}, {100}};
        QCOMPARE(QList<QVariantList>(changes), expected);
        widget.setIntMaximum(2000);
        QCOMPARE(slider->maximum(), 100000); // a scale of its own
    }

    void onlyALogarithmicExposureIsLogarithmic()
    {
        node("Gain").properties[QStringLiteral("Representation")] = QStringLiteral("Logarithmic");
        makeEditor("Gain")->updateEditor(pair("Gain", floatSnapshot(5, 0, 100)));
        QVERIFY(m_slider->maximum() != 100000);
    }

    void showsFloatInTheBoxAndAliasOnTheSlider()
    {
        FloatSliderEditor *editor = openGain();
        QCOMPARE(m_box->text(), QStringLiteral("5.0"));
        QCOMPARE(m_slider->value(), 40);
        QCOMPARE(editor->toolTip(), QStringLiteral("Range: 0.0..100.0 (Increment: 0.5)"));
        QCOMPARE(m_slider->toolTip(), editor->toolTip());
        QCOMPARE(editor->editorValue(), QVariant(5.0));
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
        QCOMPARE(aliasWrites(), QStringList {QStringLiteral("49")});
        node("Gain/Alias").number = 63;
        m_slider->setValue(63); // what the device has already
        QCOMPARE(aliasWrites().size(), 1);
        node("Gain/Alias").onWrite = Tests::Fault::Host;
        QTest::keyClick(m_box, Qt::Key_Up);
        QCOMPARE(aliasWrites().constLast(), QStringLiteral("64"));
        QCOMPARE(commits.count(), 0);
        QVERIFY(node("Gain").writes.isEmpty());
    }

    void logarithmicStepEndsWithTheDevicesAnswer()
    {
        Tests::FakeNode &device = node("ExposureTime");
        device.maximum = 1000000.0;
        node("ExposureTime/Alias").number = 200.0;
        FloatSliderEditor *editor = makeEditor("ExposureTime");
        const auto show = [&](double value) {
            editor->updateEditor(pair("ExposureTime", floatSnapshot(value, 100, 1e6, 0, 1)));
        };
        device.number = 200.0;
        show(200.0);
        connect(m_collection->parameter(pathOf("ExposureTime")).data(),
                &IParameter::parameterDataChangedDecoupled, this, [&] { show(device.number); });
        m_box->setFocus();
        device.number = 201.7; // what the alias makes of the step
        QTest::keyClick(m_box, Qt::Key_Up);
        QCOMPARE(m_box->value(), 203.0);
        QCOMPARE(node("ExposureTime/Alias").writes.size(), 1);
        QTRY_COMPARE(m_box->value(), 201.7);
        disconnect(m_collection->parameter(pathOf("ExposureTime")).data(), nullptr, this, nullptr);
    }

    void typingIsNotDisturbedButCanBeLocked()
    {
        FloatSliderEditor *editor = openGain();
        m_box->setFocus();
        m_box->selectAll();
        QTest::keyClicks(m_box, QStringLiteral("7"));
        showGain(floatSnapshot(9, 0, 100, 0.5));
        QCOMPARE(m_box->text(), QStringLiteral("7"));
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

    void toleratesWhatArithmeticLeavesOver()
    {
        openGain();
        showGain(floatSnapshot(0.5, 0, 1, 0, 15));
        showGain(floatSnapshot(0.5 + 1e-14, 0, 1, 0, 15));
        QCOMPARE(m_box->text(), QStringLiteral("0.5"));
        showGain(floatSnapshot(0.5 + 1e-13, 0, 1, 0, 15));
        QVERIFY(m_box->text() != QStringLiteral("0.5"));
    }

    void ignoresUnusableSnapshots_data()
    {
        addUnusableSnapshots("Gain is called with non-float node????",
                             "Non-readable comboBox: Gain??????");
    }

    void ignoresUnusableSnapshots()
    {
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        QFETCH(QString, entry);
        openGain();
        if (!entry.isEmpty()) {
            m_guard.expectLogEntry(ELogLevel::Fault, sliderLog, entry);
        }
        showGain(snapshot);
        QCOMPARE(m_box->text(), QStringLiteral("5.0"));
        QCOMPARE(m_box->maximum(), 100.0);

        node("Gain/Alias").send(integerSnapshot(12, 0, 9));
        node("Gain/Alias").send(floatSnapshot(1, 0, 2));
        QCOMPARE(m_slider->value(), 40);
        QCOMPARE(m_slider->maximum(), 1000);
    }

    void staysUnsetWithoutAnAlias()
    {
        FloatSliderEditor *editor = makeEditor("Alone");
        QSignalSpy commits(editor, &FloatSliderEditor::boxValueChanged);
        m_guard.expectLogEntry(ELogLevel::Fault, sliderLog,
                               QStringLiteral("Alias node is not of type integer."));
        editor->updateEditor(pair("Alone", floatSnapshot(50, 10, 90)));
        QCOMPARE(m_box->maximum(), QDoubleSpinBox().maximum());
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
        m_other = new QLineEdit(m_window.get());
    }
    void release() override
    {
        m_window.reset();
    }
    FloatSliderEditor *makeEditor(const char *name)
    {
        auto *editor = new FloatSliderEditor(m_collection, m_window.get());
        editor->setObjectName(QString::fromLatin1(name));
        m_box = editor->findChild<QDoubleSpinBox *>();
        m_slider = editor->findChild<QSlider *>();
        m_window->show();
        m_other->setFocus();
        QApplication::setActiveWindow(m_window.get());
        return editor;
    }

    FloatSliderEditor *openGain()
    {
        m_gain = makeEditor("Gain");
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
    FloatSliderEditor *m_gain = nullptr; // by parent
    QDoubleSpinBox *m_box = nullptr; // by parent
    QSlider *m_slider = nullptr; // by parent
    QLineEdit *m_other = nullptr; // by parent
};

QTEST_MAIN(TestFloatSliderEditor)
#include "tst_floatslidereditor.moc"
