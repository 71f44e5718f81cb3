// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "viewertest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QMetaEnum>

namespace {

QString roleName(QAccessible::Role role)
{
    return QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

// An editor of several parts is only their frame.
bool handsTheKeyboardOn(const QAccessibleInterface &part)
{
    const auto *widget = qobject_cast<const QWidget *>(part.object());
    return widget && widget->focusProxy();
}

bool isControl(const QAccessibleInterface &part)
{
    switch (part.role()) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
    case QAccessible::Table:
    case QAccessible::Tree:
        return true;
    default:
        return part.state().focusable && !handsTheKeyboardOn(part);
    }
}

// A box tells its entry under both; what it is for is told by its label.
QString nameOf(const QAccessibleInterface &part)
{
    const auto labels = part.relations(QAccessible::Label);
    return labels.isEmpty() ? part.text(QAccessible::Name)
                            : labels.constFirst().first->text(QAccessible::Name);
}

bool hasValue(QAccessibleInterface &part)
{
    switch (part.role()) {
    case QAccessible::Slider:
    case QAccessible::SpinBox:
        return part.valueInterface() && part.valueInterface()->currentValue().isValid();
    case QAccessible::ComboBox:
        return !part.text(QAccessible::Value).isEmpty();
    case QAccessible::EditableText:
        return part.textInterface()
            && part.textInterface()->characterCount() == part.text(QAccessible::Value).size();
    default:
        return true;
    }
}

// What the interface tells is what the widget is. Of a view, Qt tells no state but those of its
// rows.
bool isTrue(QAccessible::State state, const QWidget &widget)
{
    if (qobject_cast<const QAbstractItemView *>(&widget)) {
        return true;
    }
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return bool(state.disabled) != widget.isEnabled() && bool(state.focused) == widget.hasFocus()
        && (!button || bool(state.checked) == button->isChecked());
}

// Every fault of the part and what is in it, each with the way there.
QStringList faults(QAccessibleInterface *part, const QString &way)
{
    // The list of a box is told with it until it is opened.
    const auto *list = part ? qobject_cast<const QAbstractItemView *>(part->object()) : nullptr;
    if (!part || part->state().invisible || (list && !list->isVisible())) {
        return {};
    }
    QStringList found;
    const QString here = way + QLatin1Char('/') + roleName(part->role()) + QLatin1Char(' ')
        + part->text(QAccessible::Name)
        + (part->object() ? QLatin1Char('#') + part->object()->objectName() : QString());
    if (isControl(*part) && !part->state().disabled) {
        if (part->role() == QAccessible::NoRole || part->role() == QAccessible::Client) {
            found.append(here + QLatin1String(": no role"));
        }
        if (nameOf(*part).isEmpty()) {
            found.append(here + QLatin1String(": no name"));
        }
        if (!hasValue(*part)) {
            found.append(here + QLatin1String(": no value"));
        }
    }
    const auto *widget = qobject_cast<const QWidget *>(part->object());
    if (widget && !isTrue(part->state(), *widget)) {
        found.append(here + QLatin1String(": wrong state"));
    }
    for (int child = 0; child < part->childCount(); ++child) {
        found += faults(part->child(child), here);
    }
    return found;
}

} // namespace

/// What a screen reader is told of the running viewer.
class AccessibilityTest final : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QAccessible::setActive(true);
    }

    void everyControlIsTold_data()
    {
        QTest::addColumn<QString>("feature");
        QTest::newRow("as it starts") << QString();
        for (const char *feature : {"Width", "ExposureTime", "DeviceUserID", "ActionGroupKey"}) {
            QTest::newRow(feature) << path(feature);
        }
    }

    void everyControlIsTold()
    {
        QFETCH(QString, feature);
        if (!feature.isEmpty()) {
            pane().select(feature);
        }
        QStringList found = faults(QAccessible::queryAccessibleInterface(window()), QString());
        // The editors of a table are no parts of it, but are told when the keyboard comes there.
        const QAbstractItemModel &rows = *table()->model();
        for (int row = 0; row < rows.rowCount(); ++row) {
            QWidget *editor = table()->indexWidget(rows.index(row, 1));
            found += faults(editor ? QAccessible::queryAccessibleInterface(editor) : nullptr,
                            rows.index(row, 0).data().toString());
        }
        QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
    }

    void theWindowOfTheTabsIsTold()
    {
        widget<QAbstractButton>("addNewFavoriteButton")->click();
        QTRY_VERIFY(tabsWindow());
        QVERIFY(QTest::qWaitForWindowExposed(tabsWindow()));
        QAccessibleInterface *root = QAccessible::queryAccessibleInterface(tabsWindow());
        QVERIFY(root && root->childCount() > 0);
        const QStringList found = faults(root, QString());
        QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
    }

    void aRowTellsItsValue_data()
    {
        QTest::addColumn<QString>("told");
        QTest::newRow("Width") << QStringLiteral("Width: 2448");
        QTest::newRow("ExposureTime") << QStringLiteral("Exposure Time: 5000.0");
        QTest::newRow("TriggerMode") << QStringLiteral("Trigger Mode: Off");
        QTest::newRow("ReverseX") << QStringLiteral("Reverse X: off");
        QTest::newRow("SensorWidth") << QStringLiteral("Sensor Width: 2448");
        QTest::newRow("AcquisitionStart") << QStringLiteral("Acquisition Start");
    }

    void aRowTellsItsValue()
    {
        QFETCH(QString, told);
        pane().select(path(QTest::currentDataTag()));
        const QModelIndex value = table()->currentIndex().siblingAtColumn(1);
        QAccessibleInterface *view = QAccessible::queryAccessibleInterface(table());
        QAccessibleInterface *cell = view->tableInterface()->cellAt(value.row(), 1);
        QCOMPARE(cell->role(), QAccessible::Cell);
        QCOMPARE(cell->text(QAccessible::Name), told);
        table()->setCurrentIndex(value);
        QVERIFY(cell->state().focused);
    }

    void anEditorTellsWhatItSets_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<QString>("name");
        QTest::newRow("Width") << int(QAccessible::SpinBox) << QStringLiteral("Width");
        QTest::newRow("ExposureTime")
            << int(QAccessible::SpinBox) << QStringLiteral("Exposure Time");
        QTest::newRow("TriggerMode")
            << int(QAccessible::ComboBox) << QStringLiteral("Trigger Mode");
        QTest::newRow("DeviceUserID")
            << int(QAccessible::EditableText) << QStringLiteral("Device User ID");
    }

    void anEditorTellsWhatItSets()
    {
        QFETCH(int, role);
        QFETCH(QString, name);
        pane().select(path(QTest::currentDataTag()));
        table()->setFocus();
        press(Qt::Key_Right);
        press(Qt::Key_F2);
        QAccessibleInterface *editor =
            QAccessible::queryAccessibleInterface(QApplication::focusWidget());
        QCOMPARE(int(editor->role()), role);
        QVERIFY(editor->state().focused);
        // A box has its entry for a name.
        const auto place =
            role == QAccessible::ComboBox ? QAccessible::Description : QAccessible::Name;
        QCOMPARE(editor->text(place).section(QLatin1Char('\n'), 0, 0), name);
    }
};

QTEST_MAIN(AccessibilityTest)
#include "tst_accessibility.moc"
