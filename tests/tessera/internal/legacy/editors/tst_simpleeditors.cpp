// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorsnapshots.h"

#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"

#include "internal/legacy/editors/checkboxeditor.h"
#include "internal/legacy/editors/enumeditor.h"
#include "internal/legacy/editors/inteditor.h"
#include "internal/legacy/editors/intslidereditor.h"
#include "internal/legacy/editors/toolbuttoneditor.h"
#include "internal/legacy/editors/vantrelqtspinbox.h"

#include <QAbstractItemView>
#include <QSignalSpy>

#include <limits>
#include <memory>

using namespace ParameterCollection;

namespace {

constexpr qint64 widest = std::numeric_limits<qint64>::max();

auto enumSnapshot(const char *value)
{
    const auto data = liveSnapshot<EnumParameterData>();
    data->entryNames = {QStringLiteral("Off"), QStringLiteral("On"), QStringLiteral("on")};
    data->entryDisplayNames = {QStringLiteral("Switched off"), QStringLiteral("Switched on")};
    data->valueText = QString::fromLatin1(value);
    return data;
}

auto commandSnapshot(bool isDone)
{
    const auto data = liveSnapshot<CommandParameterData>();
    data->isDone = isDone;
    return data;
}

} // namespace

class TestSimpleEditors : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void checkBoxFollowsItsBoolean()
    {
        CheckBoxEditor editor(nullptr);
        const auto on = liveSnapshot<BooleanParameterData>();
        on->value = true;
        editor.updateEditor(pair("Switch", on));
        editor.updateEditor(pair("Switch", {}));
        editor.updateEditor(pair("Switch", integerSnapshot(0, 0, 1)));
        QVERIFY(editor.isChecked() && editor.isEnabled());
        QCOMPARE(editor.editorValue(), QVariant(QStringLiteral("1")));

        const auto locked = liveSnapshot<BooleanParameterData>();
        locked->isWritable = false;
        editor.updateEditor(pair("Switch", locked));
        QVERIFY(!editor.isChecked() && !editor.isEnabled());
    }

    void listShowsDisplayNamesAndGivesSymbols()
    {
        EnumEditor editor(nullptr);
        const auto locked = enumSnapshot("on");
        locked->isWritable = false;
        editor.updateEditor(pair("Choice", locked));
        QVERIFY(!editor.isEnabled());
        QCOMPARE(editor.itemText(1), QStringLiteral("Switched on"));
        QCOMPARE(editor.currentText(), QStringLiteral("on")); // without a display name
        QCOMPARE(editor.editorValue(), QVariant(QStringLiteral("on")));

        expectFault("enumEditor",
                    QStringLiteral(": Choice. No entry in the combo box matches the "
                                   "current value Never"));
        editor.updateEditor(pair("Choice", enumSnapshot("Never")));
        QCOMPARE(editor.count(), 3);
        QVERIFY(!editor.editorValue().isValid());
        expectFault("enumEditor", QStringLiteral("Choice is called with non-enumeration node????"));
        editor.updateEditor(pair("Choice", {}));
        QCOMPARE(editor.count(), 0);
    }

    void openListIsLeftAlone()
    {
        auto editor = std::make_unique<EnumEditor>(nullptr);
        editor->updateEditor(pair("Choice", enumSnapshot("Off")));
        editor->show();
        QVERIFY(QTest::qWaitForWindowExposed(editor.get()));
        editor->showPopup();
        const auto other = enumSnapshot("On");
        other->entryNames.removeLast();
        editor->updateEditor(pair("Choice", other));
        QCOMPARE(editor->count(), 3);
        QCOMPARE(editor->currentIndex(), 0);

        QTest::keyClick(editor->view(), Qt::Key_Down);
        QTest::keyClick(editor->view(), Qt::Key_Return);
        QCOMPARE(editor->editorValue(), QVariant(QStringLiteral("On")));
        QCOMPARE(editor->count(), 3); // what was dropped does not come back by itself
        editor->updateEditor(pair("Choice", other));
        QCOMPARE(editor->count(), 2);
        editor->showPopup();
        editor.reset(); // harms nothing
    }

    void buttonStaysPressedWhileItsCommandRuns()
    {
        ToolButtonEditor editor(nullptr);
        QVERIFY(!editor.editorValue().isValid()); // before the first snapshot
        QCOMPARE(editor.text(), QStringLiteral("Execute"));
        editor.updateEditor(pair("Go", commandSnapshot(true)));
        QVERIFY(!editor.isChecked());
        editor.click();
        QCOMPARE(editor.editorValue(), QVariant(QStringLiteral("1")));
        QCOMPARE(node("Go").refreshes, 1);
        QCOMPARE(node("Go").executions, 0);

        editor.updateEditor(pair("Go", commandSnapshot(false)));
        QVERIFY(editor.isChecked());
        expectFault("toolButtonEditor", QStringLiteral(" is called with non-command node????"));
        editor.updateEditor(pair("Int", commandSnapshot(true)));
        QVERIFY(editor.isChecked());
        editor.click();
        node("Go").onRefresh = Tests::Fault::Unknown;
        QVERIFY(!editor.editorValue().isValid());
    }

    void fieldShowsTextAndRange()
    {
        IntEditor editor(nullptr);
        const auto show = [&](qint64 minimum, qint64 maximum, const char *representation) {
            const auto data = integerSnapshot(7, minimum, maximum, 1, representation);
            data->valueText = QStringLiteral("as the device %1 writes it");
            editor.updateEditor(pair("Int", data));
            return editor.toolTip();
        };
        QCOMPARE(show(-3, widest, "PureNumber"), QStringLiteral("Range: -3..2147483647"));
        QCOMPARE(show(-widest, 255, "HexNumber"), QStringLiteral("Range: 0x-80000000..0xff"));
        QCOMPARE(editor.editorValue(), QVariant(QStringLiteral("as the device %1 writes it")));
        expectFault("intEditor", QStringLiteral(" is called with non-integer node????"));
        editor.updateEditor(pair("Int", {}));
        QCOMPARE(editor.text(), QStringLiteral("as the device %1 writes it"));
        QVERIFY(show(0, 1, "IPV4Address").isEmpty());
        const auto unreadable = integerSnapshot(1, 0, 2);
        unreadable->isReadable = false;
        editor.updateEditor(pair("Int", unreadable));
        QCOMPARE(editor.text(), QStringLiteral("<not readable>"));
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
        editor.updateEditor(pair("Int", integerSnapshot(widest, -widest, widest, 3)));
        QCOMPARE(editor.minimum(), std::numeric_limits<int>::min());
        QCOMPARE(editor.value(), std::numeric_limits<int>::max());
        const auto locked = integerSnapshot(5, 0, 10);
        locked->isWritable = false;
        editor.updateEditor(pair("Int", locked));
        QVERIFY(!editor.isEnabled());
        locked->isReadable = false;
        expectFault("intSliderEditor", QStringLiteral("Non-readable slider: Int??????"));
        editor.updateEditor(pair("Int", locked));
        expectFault("intSliderEditor",
                    QStringLiteral("Feature Int: value 120 out of range??? min = 0, max = 100"));
        editor.updateEditor(pair("Int", integerSnapshot(120, 0, 100, 7)));
        QCOMPARE(editor.value(), 98);
        QCOMPARE(changes.count(), 0);
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
        slider.setValue(45);
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
};

QTEST_MAIN(TestSimpleEditors)
#include "tst_simpleeditors.moc"
