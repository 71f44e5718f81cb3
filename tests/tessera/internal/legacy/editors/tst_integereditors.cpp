// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorsnapshots.h"

#include "internal/legacy/editors/inteditor.h"
#include "internal/legacy/editors/intslidereditor.h"
#include "internal/legacy/editors/vantrelqtspinbox.h"

#include <QSignalSpy>
#include <QSlider>

#include <limits>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

namespace {

const QString intLog = QStringLiteral("vantrel.viewer.plugins.tessera.intEditor");
const QString sliderLog = QStringLiteral("vantrel.viewer.plugins.tessera.intSliderEditor");
constexpr qint64 widest = std::numeric_limits<qint64>::max();

} // namespace

class TestIntegerEditors : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTextAndRange_data()
    {
        QTest::addColumn<qint64>("minimum");
        QTest::addColumn<qint64>("maximum");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("HexNumber")
            << -widest << qint64 {255} << QStringLiteral("Range: 0x-80000000..0xff");
        QTest::newRow("PureNumber")
            << qint64 {-3} << widest << QStringLiteral("Range: -3..2147483647");
        QTest::newRow("IPV4Address") << qint64 {0} << qint64 {1} << QString();
    }

    void showsTextAndRange()
    {
        QFETCH(qint64, minimum);
        QFETCH(qint64, maximum);
        IntEditor editor(nullptr);
        editor.setToolTip(QStringLiteral("old"));
        const auto data = integerSnapshot(7, minimum, maximum, 1, QTest::currentDataTag());
        data->valueText = QStringLiteral("as the device %1 writes it");
        editor.updateEditor(pair("Int", data));
        QCOMPARE(editor.text(), data->valueText);
        QCOMPARE(editor.editorValue(), QVariant(data->valueText));
        QTEST(editor.toolTip(), "toolTip");

        m_guard.expectLogEntry(ELogLevel::Fault, intLog,
                               QStringLiteral(" is called with non-integer node????"));
        editor.updateEditor(pair("Int", floatSnapshot(1, 0, 2)));
        m_guard.expectLogEntry(ELogLevel::Fault, intLog,
                               QStringLiteral("Unexpected representation."));
        editor.updateEditor(pair("Int", integerSnapshot(1, 0, 2, 1, "linear")));
        QCOMPARE(editor.text(), data->valueText);
        QTEST(editor.toolTip(), "toolTip");

        data->isReadable = false;
        editor.updateEditor(pair("Int", data));
        QCOMPARE(editor.text(), QStringLiteral("<not readable>"));
        QVERIFY(editor.toolTip().isEmpty());
    }

    void putsWhatIsTypedOnTheGrid()
    {
        ComboSlider slider;
        slider.setRangeAndStep(0, 100, 7);
        slider.setValue(40);
        QSignalSpy changes(&slider, &ComboSlider::valueChanged);
        auto *box = slider.findChild<QSpinBox *>();
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("50"));
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(box->text(), QStringLiteral("49"));
        QCOMPARE(slider.value(), 49);
        QTest::keyClick(box, Qt::Key_Enter);
        QCOMPARE(QList<QVariantList>(changes), (QList<QVariantList> {{49}}));
    }

    void sliderShowsSnapshotsWithoutWriting()
    {
        IntSliderEditor editor(nullptr);
        QSignalSpy changes(&editor, &ComboSlider::valueChanged);
        editor.updateEditor(pair("Int", integerSnapshot(300, 0, 1000)));
        QCOMPARE(editor.editorValue(), QVariant(300));
        QCOMPARE(editor.pageStep(), 50);
        editor.updateEditor(pair("Int", integerSnapshot(widest, -widest, widest, 3)));
        QCOMPARE(editor.minimum(), std::numeric_limits<int>::min());
        QCOMPARE(editor.value(), std::numeric_limits<int>::max());
        const auto locked = integerSnapshot(5, 0, 10);
        locked->isWritable = false;
        editor.updateEditor(pair("Int", locked));
        QVERIFY(!editor.isEnabled());
        QCOMPARE(changes.count(), 0);
    }

    void sliderReportsContradictions_data()
    {
        QTest::addColumn<QSharedPointer<const ParameterData>>("snapshot");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("shown");
        const auto row = [](const char *name, QSharedPointer<const ParameterData> snapshot,
                            const char *entry, int shown) {
            QTest::newRow(name) << snapshot << QString::fromLatin1(entry) << shown;
        };
        const auto unreadable = integerSnapshot(1, 0, 2);
        unreadable->isReadable = false;
        row("null", {}, "Int is called with non-integer node????", 30);
        row("float", floatSnapshot(1, 0, 2), "Int is called with non-integer node????", 30);
        row("unreadable", unreadable, "Non-readable slider: Int??????", 30);
        row("outside", integerSnapshot(120, 0, 100, 7),
            "Feature Int: value 120 out of range??? min = 0, max = 100", 98);
    }

    void sliderReportsContradictions()
    {
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        QFETCH(QString, entry);
        IntSliderEditor editor(nullptr);
        editor.updateEditor(pair("Int", integerSnapshot(30, 0, 100)));
        m_guard.expectLogEntry(ELogLevel::Fault, sliderLog, entry);
        editor.updateEditor(pair("Int", snapshot));
        QTEST(editor.value(), "shown");
    }

    void keysTakeEffectAtOnceAndProgramsAreSilent()
    {
        ComboSlider slider;
        slider.setRangeAndStep(0, 1000, 1);
        slider.setPageStep(25);
        slider.setValue(100);
        QSignalSpy changes(&slider, &ComboSlider::valueChanged);
        auto *box = slider.findChild<QSpinBox *>();
        QTest::keyClick(box, Qt::Key_Up);
        QTest::keyClick(box, Qt::Key_PageDown);
        QTest::keyClick(box, Qt::Key_PageUp);
        QTest::keyClick(box, Qt::Key_Down);
        const QList<QVariantList> expected {{101}, {76}, {101}, {100}};
        QCOMPARE(QList<QVariantList>(changes), expected);

        slider.setRange(0, 900); // a program is silent
        QCOMPARE(slider.findChild<QSlider *>()->maximum(), 900);
        slider.enableUpdate(false);
        slider.findChild<QSlider *>()->setValue(45);
        slider.enableUpdate(true);
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("7"));
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(box->text(), QStringLiteral("45"));
        QCOMPARE(QList<QVariantList>(changes), expected);

        // At the limit no step follows a page key; the next arrow key is an arrow key.
        slider.setValue(900);
        QTest::keyClick(box, Qt::Key_PageUp);
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(slider.value(), 899);
    }

    void sliderIgnoresAnswersToEarlierMoves()
    {
        IntSliderEditor editor(nullptr);
        editor.updateEditor(pair("Int", integerSnapshot(0, 0, 100)));
        Tests::FakeNode &device = node("Int");
        for (const int position : {20, 40, 60}) {
            editor.findChild<QSlider *>()->setValue(position);
            device.number = position;
        }
        for (const int answer : {20, 40, 60}) {
            editor.updateEditor(pair("Int", integerSnapshot(answer, 0, 100)));
            QCOMPARE(editor.value(), 60);
        }
        device.number = 30; // on its own
        editor.updateEditor(pair("Int", integerSnapshot(30, 0, 100)));
        QCOMPARE(editor.value(), 30);
        editor.findChild<QSlider *>()->setValue(80); // and the device keeps 30
        editor.updateEditor(pair("Int", integerSnapshot(30, 0, 100)));
        QCOMPARE(editor.value(), 30);
    }
};

QTEST_MAIN(TestIntegerEditors)
#include "tst_integereditors.moc"
