// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/actioncommand.h"
#include "host/framework/actioncontainer.h"
#include "host/framework/hostids.h"
#include "host/framework/menuservice.h"
#include "host/framework/windowservice.h"
#include "support/warningguard.h"

#include <QAbstractButton>
#include <QActionGroup>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTest>

#include <memory>

using Core::CId;

// Menu service and window service at the same main window, with the panes "All" and "User".
class TestMenusAndDocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_window = std::make_unique<QMainWindow>();
        m_menu = m_window->menuBar()->addMenu(QStringLiteral("Window"));
        m_menus.reset(new Host::MenuService(m_window.get()));
        m_container = m_menus->createContainer(CId(Host::Ids::windowMenu), m_menu);
        m_docks = std::make_unique<Host::WindowService>(m_window.get(), m_menus);
        m_notes.clear();
        m_allPane = makePane("All");
        m_userPane = makePane("User");
    }

    void cleanup()
    {
        m_allPane.reset();
        m_userPane.reset();
        m_docks.reset();
        m_menus.reset();
        m_window.reset();
        m_guard.verify();
    }

    void entryTakesOverTheFirstActionAndFollowsItsState()
    {
        QAction action(QStringLiteral("old"));
        action.setCheckable(true);
        action.setChecked(true);
        action.setEnabled(false);
        Host::ActionCommand *command = add(&action);
        QAction *entry = command->proxy();
        QVERIFY(entry->isCheckable() && entry->isChecked() && !entry->isEnabled());
        action.setEnabled(true);
        action.setChecked(false);
        QVERIFY(entry->isEnabled() && !entry->isChecked());
        entry->trigger(); // toggles both
        action.setActionGroup(new QActionGroup(&action));
        entry->trigger(); // refused: one of a group stays checked
        QVERIFY(entry->isChecked() && action.isChecked());
        action.setText(QStringLiteral("new"));
        QCOMPARE(entry->text(), QStringLiteral("old"));
        command->setAttribute(2);
        QCOMPARE(entry->text(), QStringLiteral("new"));
        action.setVisible(false);
        QVERIFY(!entry->isVisible());
    }

    void oneShortcutReachesTheFirstEnabledAction()
    {
        QVector<QAction *> actions;
        for (const int i : {0, 1, 2}) {
            auto *action = new QAction(m_window.get());
            action->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
            action->setShortcutContext(Qt::ApplicationShortcut);
            connect(action, &QAction::triggered, this,
                    [this, i] { m_notes.append(QString::number(i)); });
            add(action);
            actions.append(action);
        }
        showWindow();
        for (QAction *action : qAsConst(actions)) {
            QTest::keyClick(m_window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
            action->setEnabled(false);
        }
        QTest::keyClick(m_window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_notes.join(QLatin1Char(' ')), QStringLiteral("0 1 2"));
    }

    void entryIsHiddenWithoutActions()
    {
        auto action = std::make_unique<QAction>();
        const QAction *entry = add(action.get())->proxy();
        m_menus->unregisterAction(nullptr, CId("test"));
        m_menus->unregisterAction(nullptr, CId("test.unknown"));
        QVERIFY(entry->isVisible());
        m_menus->unregisterAction(action.get(), CId("test"));
        QVERIFY(!entry->isVisible());
        QCOMPARE(add(action.get())->proxy(), entry);
        QVERIFY(entry->isVisible());
        action.reset();
        QVERIFY(!entry->isVisible());
    }

    void groupsStandInTheirOrderWithSeparators_data()
    {
        QTest::addColumn<QString>("menu"); // the tag: "group:command ..."
        QTest::newRow("g3:c g2:b g1:a") << QStringLiteral("Quit a - b - c");
        QTest::newRow("g2:b g1:a g2:c") << QStringLiteral("Quit a - b c");
        QTest::newRow("unknown:x g3:c") << QStringLiteral("Quit c - x");
        QTest::newRow("g1:a g1:b g1:a g2:a") << QStringLiteral("Quit a b");
    }

    void groupsStandInTheirOrderWithSeparators()
    {
        m_menu->addAction(QStringLiteral("Quit"));
        for (const char *group : {"g1", "g2", "g3"}) {
            m_menus->addGroup(CId(Host::Ids::windowMenu), CId(group));
        }
        const auto entries = QByteArray(QTest::currentDataTag()).split(' ');
        for (const QByteArray &entry : entries) {
            const QByteArrayList parts = entry.split(':');
            auto *action = new QAction(QString::fromLatin1(parts.at(1)), m_menu);
            m_container->addAction(add(action, parts.at(1)), CId(parts.at(0).constData()));
        }
        QTEST(windowMenu(), "menu");
    }

    void containersOutliveTheirMenu()
    {
        QAction action;
        m_window.reset();
        QCOMPARE(m_container->menu(), nullptr);
        m_container->addAction(add(&action), CId("g"));
    }

    void deletesActionsWithoutParentWhenItEnds()
    {
        const QPointer<QAction> orphan(new QAction);
        const QPointer<QAction> owned(new QAction(m_window.get()));
        add(orphan);
        add(orphan, "test.again");
        add(owned);
        m_docks.reset();
        m_menus.reset();
        QVERIFY(orphan.isNull() && !owned.isNull());
    }

    void docksAsToldOrAsWishedBefore_data()
    {
        QTest::addColumn<QVariant>("wished");
        QTest::addColumn<bool>("added");
        QTest::addColumn<QString>("menu"); // only panes added visible have an entry
        QTest::newRow("open") << QVariant() << true << QStringLiteral("R&&D on");
        QTest::newRow("closed") << QVariant() << false << QString();
        QTest::newRow("user pane that was open") << QVariant(true) << false << QString();
        QTest::newRow("unwanted") << QVariant(false) << true << QStringLiteral("R&&D");
    }

    void docksAsToldOrAsWishedBefore()
    {
        QFETCH(QVariant, wished);
        QFETCH(bool, added);
        const bool open = wished.isValid() ? wished.toBool() : added;
        if (wished.isValid()) {
            m_docks->setDockWidgetVisible(m_user, wished.toBool());
        }
        m_docks->setDockWidgetTitle(m_user, QStringLiteral("R&&D"));
        QVERIFY(m_docks->isDockWidgetClosed(m_user)); // unknown as yet
        addDock(m_user, added);
        showWindow();
        QCOMPARE(m_docks->isDockWidgetClosed(m_user), !open);
        QCOMPARE(m_notes, open ? QStringList(QStringLiteral("User shown open")) : QStringList());
        QCOMPARE(dock(m_user)->windowTitle(), QStringLiteral("R&&D"));
        QTEST(windowMenu(), "menu");
    }

    void stateChangesBeforeThePaneHearsOfIt()
    {
        addDock(m_all, true);
        showWindow();
        const auto expectState = [this](bool open) {
            QCOMPARE(m_notes.takeLast(),
                     QLatin1String(open ? "All shown open" : "All hidden closed"));
            QCOMPARE(windowMenu(), QLatin1String(open ? "All on" : "All"));
        };
        dock(m_all)
            ->findChild<QAbstractButton *>(QStringLiteral("qt_dockwidget_closebutton"))
            ->click();
        expectState(false);
        m_menu->actions().at(0)->trigger();
        expectState(true);
        dock(m_all)->toggleViewAction()->trigger();
        expectState(false);
        m_docks->setDockWidgetVisible(m_all, true);
        expectState(true);
    }

    // Behind another dock, floating, in a restored layout and when the window closes.
    void openIsAStateOfItsOwn()
    {
        addBoth();
        QCOMPARE(m_window->dockWidgetArea(dock(m_all)), Qt::RightDockWidgetArea);
        QVERIFY(!m_allPane->visibleRegion().isEmpty()); // the first is on top
        QCOMPARE(windowMenu(), QStringLiteral("All on User on"));
        m_docks->setDockWidgetVisible(m_user, true);
        QTRY_VERIFY(!m_userPane->visibleRegion().isEmpty()); // the opened one comes to the front
        for (const bool floating : {true, false}) {
            dock(m_user)->setFloating(floating);
            QCOMPARE(windowMenu(), QStringLiteral("All on User on"));
        }
        m_docks->setDockWidgetVisible(m_user, false);
        const QByteArray state = m_window->saveState();
        m_docks->setDockWidgetVisible(m_user, true);
        QVERIFY(m_window->restoreState(state));
        QCOMPARE(m_notes.constLast(), QStringLiteral("User hidden closed"));
        QCOMPARE(windowMenu(), QStringLiteral("All on User"));
        m_docks->setDockWidgetVisible(m_user, true);
        m_window->close();
        QVERIFY(m_notes.contains(QStringLiteral("User hidden open")));
        QVERIFY(!m_docks->isDockWidgetClosed(m_all) && !m_docks->isDockWidgetClosed(m_user));
    }

    void removingLeavesThePaneAndItsStateUntilItIsOut()
    {
        addBoth();
        for (const bool visible : {false, true}) {
            m_docks->setDockWidgetVisible(m_user, visible);
            m_notes.clear();
            m_docks->removeDockWidget(m_user);
            QVERIFY(m_notes.contains(
                QLatin1String(visible ? "User hidden open" : "User hidden closed")));
            QCOMPARE(m_userPane->parentWidget(), nullptr);
            QVERIFY(m_docks->isDockWidgetClosed(m_user));
            QCOMPARE(windowMenu(), QStringLiteral("All on"));
            addDock(m_user, true); // again
            QCOMPARE(m_window->tabifiedDockWidgets(dock(m_all)), {dock(m_user)});
        }
    }

    void refusesASecondDockAndOutlivesItsPane()
    {
        m_guard.expectLogEntry(
            Core::Logging::ELogLevel::Fault, QStringLiteral("vantrel.viewer.windowService"),
            QStringLiteral("Cannot add the dock \"All\": a dock with this id is there already"));
        addDock(m_all, true);
        addDock(m_all, true);
        m_allPane.reset();
        m_docks->removeDockWidget(m_all);
    }

private:
    std::unique_ptr<QWidget> makePane(const char *name)
    {
        auto pane = std::make_unique<QWidget>();
        pane->setObjectName(QLatin1String(name));
        pane->setWindowTitle(pane->objectName());
        pane->installEventFilter(this);
        return pane;
    }

    Host::ActionCommand *add(QAction *action, const QByteArray &id = "test")
    {
        return dynamic_cast<Host::ActionCommand *>(m_menus->registerAction(
            action, CId(id.constData()),
            Core::AppCoreComponents::CContext(CId(Host::Ids::globalContext))));
    }

    // The visible entries of the Window menu with their check marks, separators as "-".
    QString windowMenu() const
    {
        QStringList texts;
        const QList<QAction *> actions = m_menu->actions();
        for (const QAction *action : actions) {
            if (action->isVisible()) {
                texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
                texts.last().append(QLatin1String(action->isChecked() ? " on" : ""));
            }
        }
        return texts.join(QLatin1Char(' '));
    }

    QDockWidget *dock(const CId &id) const
    {
        return m_window->findChild<QDockWidget *>(id.toString());
    }

    void addDock(const CId &id, bool visible)
    {
        m_docks->addDockWidget(id, id == m_all ? m_allPane.get() : m_userPane.get(), 3, visible,
                               false);
    }

    void addBoth()
    {
        addDock(m_all, true);
        addDock(m_user, true);
        showWindow();
    }

    void showWindow()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    // What the window service says of a pane when that is shown or hidden.
    bool eventFilter(QObject *pane, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
            const CId id(qPrintable(pane->objectName()));
            m_notes.append(pane->objectName()
                           + QLatin1String(event->type() == QEvent::Show ? " shown" : " hidden")
                           + QLatin1String(m_docks->isDockWidgetClosed(id) ? " closed" : " open"));
        }
        return false;
    }

    const CId m_all {"All"};
    const CId m_user {"User"};
    QStringList m_notes;
    Tests::WarningGuard m_guard;
    std::unique_ptr<QMainWindow> m_window;
    QMenu *m_menu = nullptr; // by parent
    Host::ActionContainer *m_container = nullptr; // borrowed
    QSharedPointer<Host::MenuService> m_menus;
    std::unique_ptr<Host::WindowService> m_docks;
    std::unique_ptr<QWidget> m_allPane;
    std::unique_ptr<QWidget> m_userPane;
};

QTEST_MAIN(TestMenusAndDocks)
#include "tst_menusanddocks.moc"
