// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "viewertest.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>

/// The viewer without a mouse: keys as they come from the window system, whatever has the keyboard.
class KeyboardTest final : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setCursorFlashTime(0); // pictures are compared
    }

    void tabReachesEveryControlAndComesBack_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("inPane");
        QTest::newRow("All") << QByteArray("All")
                             << QStringLiteral("tesseraTableView addNewFavoriteButton "
                                               "checkBoxShowTreeView checkBoxPolling resetButton "
                                               "filterEdit useCaseComboBox treeView");
        QTest::newRow("Basic") << QByteArray("Basic")
                               << QStringLiteral("tesseraTableView checkBoxUnavailableFavs "
                                                 "resetButton");
    }

    void tabReachesEveryControlAndComesBack()
    {
        QFETCH(QByteArray, name);
        QFETCH(QString, inPane);
        pane(name);
        if (name == "All") {
            pane().select(path("Width")); // editors in the table, which Tab passes over
        }
        table(name)->setFocus();
        const QStringList there = walk(Qt::Key_Tab, Qt::NoModifier);
        QStringList back = walk(Qt::Key_Backtab, Qt::ShiftModifier);
        std::reverse(back.begin() + 1, back.end());
        QCOMPARE(back, there);
        QStringList expected = inPane.split(QLatin1Char(' '));
        expected += {QStringLiteral("deviceList"), QStringLiteral("Close"),
                     QStringLiteral("documentationView"), QStringLiteral("logView"),
                     QStringLiteral("QTabBar")};
        QCOMPARE(sorted(there), sorted(expected));
    }

    void theKeyboardCanBeSeenOnEveryControl()
    {
        pane().select(path("Width"));
        widget("filterEdit")->setFocus();
        do {
            const QWidget *control = QApplication::focusWidget();
            const QImage with = picture(control);
            press(Qt::Key_Tab);
            QVERIFY2(with != picture(control), qPrintable(nameOf(control)));
        } while (!widget("filterEdit")->hasFocus());
    }

    void entersAndChangesEachKind_data()
    {
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QVariant>("expected");
        const auto row = [](const char *feature, const QVector<int> &keys, const char *typed,
                            const QVariant &expected) {
            QTest::newRow(feature) << keys << QString::fromLatin1(typed) << expected;
        };
        row("Width", {Qt::Key_F2}, "640", 640);
        row("ExposureTime", {Qt::Key_Return}, "1234.5", 1234.5);
        row("BalanceRatio", {Qt::Key_F2, Qt::Key_Tab, Qt::Key_Home}, "", 0.0);
        row("ActionGroupKey", {Qt::Key_F2}, "0x1F", 31);
        row("DeviceUserID", {Qt::Key_F2}, "Hall 7", QByteArray("Hall 7"));
        row("TriggerMode", {Qt::Key_F2, Qt::Key_Down}, "", QStringLiteral("On"));
        row("ReverseX", {Qt::Key_Space}, "", true);
        row("AcquisitionStart", {Qt::Key_Return}, "", QVariant());
    }

    void entersAndChangesEachKind()
    {
        QFETCH(QVector<int>, keys);
        QFETCH(QString, typed);
        QFETCH(QVariant, expected);
        const char *feature = QTest::currentDataTag();
        pane().select(path(feature));
        table()->setFocus();
        press(Qt::Key_Right); // from the name to the value
        const QImage before = picture(table());
        for (const int key : qAsConst(keys)) {
            press(static_cast<Qt::Key>(key));
        }
        QVERIFY2(picture(table()) != before, "the keyboard is in the editor, and nobody sees it");
        if (!typed.isEmpty()) {
            type(typed);
            press(Qt::Key_Return);
        }
        if (expected.isValid()) {
            QTRY_COMPARE(deviceValue(feature), expected);
        } else {
            QTRY_COMPARE(deviceValue("TLParamsLocked"), QVariant(1)); // it runs
        }
    }

    void walksTheTreeAndTheTable()
    {
        tree()->setFocus();
        press(Qt::Key_Home);
        press(Qt::Key_Down);
        const QString category = tree()->currentIndex().data().toString();
        QTRY_COMPARE(table()->rootIndex(), QModelIndex());
        QVERIFY(table()->model()->rowCount() > 1);
        press(Qt::Key_Tab);
        QVERIFY(table()->hasFocus());
        press(Qt::Key_Down);
        const QString first = table()->currentIndex().data().toString();
        press(Qt::Key_Down);
        QVERIFY(table()->currentIndex().data().toString() != first);
        QCOMPARE(tree()->currentIndex().data().toString(), category);
    }

    void searchesAndLeavesTheSearch()
    {
        tree()->setFocus();
        press(Qt::Key_F, Qt::ControlModifier);
        const auto *search = widget<QLineEdit>("filterEdit");
        QVERIFY(search->hasFocus());
        type(QStringLiteral("gamma"));
        QTRY_COMPARE(search->text(), QStringLiteral("gamma"));
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        QTRY_COMPARE(search->text(), QString());
    }

    void choosesAndLeavesAUseCase()
    {
        auto *box = widget<QComboBox>("useCaseComboBox");
        box->setFocus();
        press(Qt::Key_Down);
        auto *chosen = widget<QLineEdit>("useCaseEdit");
        QTRY_VERIFY(chosen && chosen->isVisible());
        QCOMPARE(chosen->text(), box->itemText(1));
        chosen->setFocus();
        press(Qt::Key_Delete);
        QTRY_COMPARE(box->currentIndex(), 0);
        QVERIFY(box->hasFocus()); // and not lost with the line that went
    }

    void showsUnavailableFeaturesAndReorders()
    {
        pane("Basic");
        const auto names = [this] {
            const QAbstractItemModel *rows = table("Basic")->model();
            return QStringList {rows->index(0, 0).data().toString(),
                                rows->index(1, 0).data().toString()};
        };
        const QStringList before = names();
        const int available = table("Basic")->model()->rowCount();
        table("Basic")->setFocus();
        press(Qt::Key_Down);
        press(Qt::Key_Up, Qt::ControlModifier);
        QTRY_COMPARE(names(), QStringList({before.at(1), before.at(0)}));
        press(Qt::Key_Tab);
        auto *unavailable = qobject_cast<QCheckBox *>(QApplication::focusWidget());
        QVERIFY(unavailable);
        const bool wasChecked = unavailable->isChecked();
        press(Qt::Key_Space);
        QCOMPARE(unavailable->isChecked(), !wasChecked);
        QTRY_VERIFY(table("Basic")->model()->rowCount() != available);
    }

    void opensTheMenuOfTheCurrentRow_data()
    {
        QTest::addColumn<QByteArray>("view");
        QTest::addColumn<QString>("key");
        for (const char *view : {"treeView", "tesseraTableView"}) {
            for (const char *key : {"Menu", "shift+F10"}) {
                QTest::addRow("%s, %s", view, key) << QByteArray(view) << QString::fromLatin1(key);
            }
        }
    }

    void opensTheMenuOfTheCurrentRow()
    {
        QFETCH(QByteArray, view);
        QFETCH(QString, key);
        pane().select(path("Width"));
        auto *rows = widget<QAbstractItemView>(view);
        rows->setFocus();
        QPoint place;
        QStringList entries;
        QTimer look; // the menu has an event loop of its own
        connect(&look, &QTimer::timeout, this, [&] {
            if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
                place = menu->pos();
                const QList<QAction *> actions = menu->actions();
                std::transform(actions.begin(), actions.end(), std::back_inserter(entries),
                               [](const QAction *action) { return action->text(); });
                press(Qt::Key_Escape);
            }
        });
        look.start(10);
        // What the menu key asks for is made of it by the window system.
        QProcess::startDetached(QStringLiteral("xdotool"), {QStringLiteral("key"), key});
        QTRY_VERIFY(!entries.isEmpty());
        const QRect row = rows->visualRect(rows->currentIndex());
        QVERIFY(QRect(rows->mapToGlobal(row.topLeft()), row.size()).contains(place));
        QVERIFY(rows->hasFocus());
    }

    void worksTheWindowOfTheTabs()
    {
        widget("addNewFavoriteButton")->setFocus();
        press(Qt::Key_Space);
        QTRY_VERIFY(tabsWindow());
        tabsWindow()->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(tabsWindow()));
        const QQuickItem *start = tabsWindow()->activeFocusItem();
        int stops = 0;
        do {
            const QImage without = tabsWindow()->grabWindow();
            press(Qt::Key_Tab);
            QVERIFY2(tabsWindow()->grabWindow() != without,
                     qPrintable(tabsWindow()->activeFocusItem()->objectName()));
        } while (tabsWindow()->activeFocusItem() != start && ++stops < 40);
        QCOMPARE(stops, 9); // four names, four bins, OK and Cancel
        press(Qt::Key_Escape);
        QTRY_VERIFY(!tabsWindow());
    }

private:
    static QString nameOf(const QWidget *widget)
    {
        if (!widget) {
            return QStringLiteral("nothing");
        }
        if (!widget->objectName().isEmpty()) {
            return widget->objectName();
        }
        const QString text = widget->property("text").toString().remove(QLatin1Char('&'));
        return text.isEmpty() ? QLatin1String(widget->metaObject()->className()) : text;
    }

    static QStringList sorted(QStringList names)
    {
        names.sort();
        return names;
    }

    /// The controls on the way from the one with the keyboard until it is back there.
    QStringList walk(Qt::Key key, Qt::KeyboardModifiers modifiers) const
    {
        constexpr int tooFar = 40;
        const QWidget *start = QApplication::focusWidget();
        QStringList names;
        do {
            names.append(nameOf(QApplication::focusWidget()));
            press(key, modifiers);
        } while (QApplication::focusWidget() != start && names.size() < tooFar);
        return names;
    }

    /// The control as it is seen, with a frame that may stand around it.
    QImage picture(const QWidget *control) const
    {
        constexpr int frame = 3;
        const QRect place(control->mapTo(window(), QPoint()), control->size());
        QCoreApplication::processEvents();
        return window()
            ->grab(place.adjusted(-frame, -frame, frame, frame))
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }
};

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
