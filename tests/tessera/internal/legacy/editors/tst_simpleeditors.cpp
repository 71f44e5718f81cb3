// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorsnapshots.h"

#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"

#include "internal/legacy/editors/checkboxeditor.h"
#include "internal/legacy/editors/enumeditor.h"
#include "internal/legacy/editors/toolbuttoneditor.h"

#include <QAbstractItemView>

#include <memory>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

namespace {

const QString enumLog = QStringLiteral("vantrel.viewer.plugins.tessera.enumEditor");
const QString buttonLog = QStringLiteral("vantrel.viewer.plugins.tessera.toolButtonEditor");

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

        m_guard.expectLogEntry(ELogLevel::Fault, enumLog,
                               QStringLiteral(": Choice. No entry in the combo box matches the "
                                              "current value Never"));
        editor.updateEditor(pair("Choice", enumSnapshot("Never")));
        QCOMPARE(editor.count(), 3);
        QVERIFY(!editor.editorValue().isValid());
        m_guard.expectLogEntry(ELogLevel::Fault, enumLog,
                               QStringLiteral("Choice is called with non-enumeration node????"));
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
        m_guard.expectLogEntry(ELogLevel::Fault, buttonLog,
                               QStringLiteral(" is called with non-command node????"));
        editor.updateEditor(pair("Int", commandSnapshot(true)));
        QVERIFY(editor.isChecked());
        editor.click();
        node("Go").onRefresh = Tests::Fault::Unknown;
        QVERIFY(!editor.editorValue().isValid());
    }
};

QTEST_MAIN(TestSimpleEditors)
#include "tst_simpleeditors.moc"
