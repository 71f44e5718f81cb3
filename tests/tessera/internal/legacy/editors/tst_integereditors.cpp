// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorsnapshots.h"

#include "internal/legacy/editors/inteditor.h"
#include "internal/legacy/editors/intslidereditor.h"
#include "internal/legacy/editors/vantrelqtspinbox.h"
#include "support/warningguard.h"

#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <limits>
#include <memory>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

namespace {

const QString intLog = QStringLiteral("vantrel.viewer.plugins.tessera.intEditor");
const QString sliderLog = QStringLiteral("vantrel.viewer.plugins.tessera.intSliderEditor");
constexpr qint64 widest = std::numeric_limits<qint64>::max();

QString entered(QWidget *spinBox, const char *digits)
{
    static_cast<QAbstractSpinBox *>(spinBox)->selectAll();
    QTest::keyClicks(spinBox, QString::fromLatin1(digits));
    QTest::keyClick(spinBox, Qt::Key_Return);
    return static_cast<QAbstractSpinBox *>(spinBox)->text();
}

} // namespace

class TestIntegerEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_camera = std::make_unique<EditorCamera>();
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void showsTextAndRange_data()
    {
        QTest::addColumn<QByteArray>("representation");
        QTest::addColumn<qint64>("minimum");
        QTest::addColumn<qint64>("maximum");
        QTest::addColumn<QString>("toolTip");
        const QByteArray hex("HexNumber");
        QTest::newRow("hexadecimal")
            << hex << qint64 {0} << qint64 {255} << QStringLiteral("Range: 0x0..0xff");
        QTest::newRow("negative hexadecimal")
            << hex << -widest << qint64 {16} << QStringLiteral("Range: 0x-80000000..0x10");
        for (const char *word : {"PureNumber", "Linear", "Logarithmic"}) {
            QTest::newRow(word) << QByteArray(word) << qint64 {-3} << widest
                                << QStringLiteral("Range: -3..2147483647");
        }
        for (const char *word : {"IPV4Address", "Boolean", "MACAddress"}) {
            QTest::newRow(word) << QByteArray(word) << qint64 {0} << qint64 {1} << QString();
        }
    }

    void showsTextAndRange()
    {
        QFETCH(QByteArray, representation);
        QFETCH(qint64, minimum);
        QFETCH(qint64, maximum);
        IntEditor editor(nullptr);
        editor.setToolTip(QStringLiteral("old"));
        editor.setText(QStringLiteral("half typ"));
        const auto data = integerSnapshot(7, minimum, maximum, 1, representation.constData());
        data->valueText = QStringLiteral("as the device %1 writes it");
        editor.updateEditor(m_camera->pair("Int", data));
        QCOMPARE(editor.text(), data->valueText);
        QCOMPARE(editor.editorValue(), QVariant(data->valueText));
        QTEST(editor.toolTip(), "toolTip");
    }

    void keepsTextAfterAnUnusableSnapshot()
    {
        IntEditor editor(nullptr);
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(7, 0, 9)));
        for (const ParameterAndData &pair :
             {m_camera->pair("Int", {}), m_camera->pair("Int", floatSnapshot(1, 0, 2)),
              m_camera->pair("Float", integerSnapshot(1, 0, 2)), ParameterAndData()}) {
            m_guard.expectLogEntry(ELogLevel::Fault, intLog,
                                   QStringLiteral(" is called with non-integer node????"));
            editor.updateEditor(pair);
        }
        for (const char *word : {"", "linear"}) {
            m_guard.expectLogEntry(ELogLevel::Fault, intLog,
                                   QStringLiteral("Unexpected representation."));
            editor.updateEditor(m_camera->pair("Int", integerSnapshot(1, 0, 2, 1, word)));
        }
        QCOMPARE(editor.text(), QStringLiteral("7"));
        QCOMPARE(editor.toolTip(), QStringLiteral("Range: 0..9"));
    }

    void saysThatTheValueCannotBeRead()
    {
        IntEditor editor(nullptr);
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(7, 0, 9)));
        QVERIFY(!editor.showsNotReadable());
        const auto unreadable = integerSnapshot(7, 0, 9);
        unreadable->isReadable = false;
        editor.updateEditor(m_camera->pair("Int", unreadable));
        QCOMPARE(editor.text(), QStringLiteral("<not readable>"));
        QVERIFY(editor.toolTip().isEmpty());
        QVERIFY(editor.showsNotReadable());
        QTest::keyClicks(&editor, QStringLiteral("1"));
        QVERIFY(!editor.showsNotReadable());
    }

    void putsWhatIsTypedOnTheGrid_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("step");
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<int>("value");
        QTest::newRow("between") << 0 << 7 << QByteArray("50") << 49;
        QTest::newRow("maximum") << 0 << 7 << QByteArray("100") << 98;
        QTest::newRow("no grid") << 10 << 0 << QByteArray("13") << 13;
        QTest::newRow("negative") << -10 << 4 << QByteArray("-1") << -2;
    }

    void putsWhatIsTypedOnTheGrid()
    {
        QFETCH(int, minimum);
        QFETCH(int, step);
        QFETCH(QByteArray, typed);
        QFETCH(int, value);
        ComboSlider slider;
        slider.setRangeAndStep(minimum, 100, step);
        slider.setValue(40);
        QSignalSpy changes(&slider, &ComboSlider::valueChanged);
        auto *box = slider.findChild<QSpinBox *>();
        QCOMPARE(entered(box, typed.constData()), QString::number(value));
        QCOMPARE(slider.value(), value);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.constFirst().constFirst().toInt(), value);
        QTest::keyClick(box, Qt::Key_Enter);
        QCOMPARE(changes.count(), 1);
    }

    void programsChangeItSilently()
    {
        ComboSlider slider;
        QSignalSpy changes(&slider, &ComboSlider::valueChanged);
        QSignalSpy ranges(&slider, &ComboSlider::rangeChanged);
        slider.setRangeAndStep(10, 20, 5);
        QCOMPARE(slider.toolTip(), QStringLiteral("Range: 10..20 (Increment: 5)"));
        slider.setValue(13);
        QCOMPARE(slider.value(), 10);
        QCOMPARE(slider.findChild<QSpinBox *>()->value(), 10);
        slider.setProperty("minimum", 15);
        slider.setProperty("maximum", 30);
        slider.setRange(40, 50);
        QCOMPARE(slider.value(), 40);
        slider.setSingleStep(1);
        QCOMPARE(slider.toolTip(), QStringLiteral("Range: 40..50"));
        QCOMPARE(ranges.count(), 4);
        QCOMPARE(ranges.at(1), QVariantList({15, 20}));
        QCOMPARE(changes.count(), 0);

        slider.enableUpdate(false);
        slider.findChild<QSlider *>()->setValue(45);
        QCOMPARE(changes.count(), 0);
        slider.enableUpdate(true);
        slider.findChild<QSlider *>()->setValue(46);
        QCOMPARE(changes.count(), 1);
    }

    void everyKeyStepTakesEffectAtOnce()
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

        // At the limit no step follows a page key; the next arrow key is an arrow key.
        slider.setValue(1000);
        QTest::keyClick(box, Qt::Key_PageUp);
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(slider.value(), 999);
    }

    void escapeTakesTypingBack()
    {
        ComboSlider slider;
        slider.setRangeAndStep(0, 1000, 1);
        slider.setValue(100);
        QSignalSpy changes(&slider, &ComboSlider::valueChanged);
        auto *box = slider.findChild<QSpinBox *>();
        QTest::keyClick(box, Qt::Key_End);
        QTest::keyClicks(box, QStringLiteral("0"));
        QCOMPARE(box->text(), QStringLiteral("1000"));
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(box->text(), QStringLiteral("100"));
        QCOMPARE(changes.count(), 0);
    }

    void sliderShowsSnapshotsWithoutWriting()
    {
        IntSliderEditor editor(nullptr);
        QSignalSpy changes(&editor, &ComboSlider::valueChanged);
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(300, 0, 1000)));
        QCOMPARE(editor.editorValue(), QVariant(300));
        QCOMPARE(editor.pageStep(), 50);
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(widest, -widest, widest, 3)));
        QCOMPARE(editor.minimum(), std::numeric_limits<int>::min());
        QCOMPARE(editor.value(), std::numeric_limits<int>::max());
        QCOMPARE(editor.pageStep(), 6);
        const auto locked = integerSnapshot(5, 0, 10);
        locked->isWritable = false;
        editor.updateEditor(m_camera->pair("Int", locked));
        QVERIFY(!editor.isEnabled());
        QCOMPARE(editor.pageStep(), 2);
        QCOMPARE(changes.count(), 0);
    }

    void sliderReportsContradictionsAndShowsWhatItCan()
    {
        IntSliderEditor editor(nullptr);
        m_guard.expectLogEntry(
            ELogLevel::Fault, sliderLog,
            QStringLiteral("Feature Int: value 120 out of range??? min = 0, max = 100"));
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(120, 0, 100, 7)));
        QCOMPARE(editor.value(), 98);
        m_guard.expectLogEntry(ELogLevel::Fault, sliderLog,
                               QStringLiteral("Feature Int: min value 9 > max value 3???"));
        m_guard.expectLogEntry(
            ELogLevel::Fault, sliderLog,
            QStringLiteral("Feature Int: value 5 out of range??? min = 9, max = 3"));
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(5, 9, 3)));
    }

    void sliderKeepsWhatItShowsAfterAnUnusableSnapshot()
    {
        IntSliderEditor editor(nullptr);
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(300, 0, 1000)));
        for (const auto &data : {QSharedPointer<const ParameterData>(),
                                 QSharedPointer<const ParameterData>(floatSnapshot(1, 0, 2))}) {
            m_guard.expectLogEntry(ELogLevel::Fault, sliderLog,
                                   QStringLiteral("Int is called with non-integer node????"));
            editor.updateEditor(m_camera->pair("Int", data));
        }
        const auto unreadable = integerSnapshot(1, 0, 2);
        unreadable->isReadable = false;
        m_guard.expectLogEntry(ELogLevel::Fault, sliderLog,
                               QStringLiteral("Non-readable slider: Int??????"));
        editor.updateEditor(m_camera->pair("Int", unreadable));
        QCOMPARE(editor.value(), 300);
        QCOMPARE(editor.maximum(), 1000);
    }

    void sliderIgnoresAnswersToEarlierMoves()
    {
        IntSliderEditor editor(nullptr);
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(0, 0, 100)));
        Tests::FakeNode &device = m_camera->node("Int");
        for (const int position : {20, 40, 60}) {
            editor.findChild<QSlider *>()->setValue(position);
            device.number = position;
        }
        for (const int answer : {20, 40, 60}) {
            editor.updateEditor(m_camera->pair("Int", integerSnapshot(answer, 0, 100)));
            QCOMPARE(editor.value(), 60);
        }
        device.number = 30; // on its own
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(30, 0, 100)));
        QCOMPARE(editor.value(), 30);
        editor.findChild<QSlider *>()->setValue(80); // and the device keeps 30
        editor.updateEditor(m_camera->pair("Int", integerSnapshot(30, 0, 100)));
        QCOMPARE(editor.value(), 30);
    }

private:
    Tests::WarningGuard m_guard;
    std::unique_ptr<EditorCamera> m_camera;
};

QTEST_MAIN(TestIntegerEditors)
#include "tst_integereditors.moc"
