// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/actioncommand.h"
#include "host/framework/actioncontainer.h"
#include "host/framework/hostids.h"
#include "host/framework/menuservice.h"
#include "support/warningguard.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTest>

#include <memory>

using Core::CId;
using Core::AppCoreComponents::CContext;

namespace {

// A menu of the test as text: the texts of its actions, separators as "-".
QStringList texts(const QMenu &menu)
{
    QStringList result;
    const QList<QAction *> actions = menu.actions();
    result.reserve(actions.size());
    for (const QAction *action : actions) {
        result.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return result;
}

} // namespace

class TestMenuService : public QObject
{
    Q_OBJECT

private:
    Host::ActionCommand *add(QAction *action, const char *id)
    {
        return dynamic_cast<Host::ActionCommand *>(
            m_service->registerAction(action, CId(id), CContext(CId(Host::Ids::globalContext))));
    }

    Host::ActionCommand *add(const QString &text)
    {
        auto *action = new QAction(text, this);
        return add(action, qPrintable(QStringLiteral("test.") + text));
    }

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_window = std::make_unique<QMainWindow>();
        m_service = std::make_unique<Host::MenuService>(m_window.get());
    }

    void cleanup()
    {
        m_service.reset();
        m_window.reset();
        m_guard.verify();
    }

    void takesOverTheFirstActionAndFollowsItsState()
    {
        QAction action(QStringLiteral("old"));
        action.setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
        action.setShortcutContext(Qt::ApplicationShortcut);
        action.setCheckable(true);
        action.setChecked(true);
        action.setEnabled(false);
        Host::ActionCommand *command = add(&action, "test.a");
        const QAction *proxy = command->proxy();
        QCOMPARE(proxy->text(), QStringLiteral("old"));
        QCOMPARE(proxy->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+C")));
        QCOMPARE(proxy->shortcutContext(), Qt::ApplicationShortcut);
        QVERIFY(proxy->isCheckable() && proxy->isChecked() && !proxy->isEnabled());
        action.setEnabled(true);
        action.setChecked(false);
        QVERIFY(proxy->isEnabled() && !proxy->isChecked() && proxy->isVisible());
        action.setVisible(false);
        QVERIFY(!proxy->isVisible());
        action.setText(QStringLiteral("new"));
        command->setAttribute(1);
        QCOMPARE(proxy->text(), QStringLiteral("old"));
        command->setAttribute(2);
        QCOMPARE(proxy->text(), QStringLiteral("new"));
    }

    void oneShortcutReachesTheFirstEnabledOfSixActions_data()
    {
        QTest::addColumn<int>("disabled");
        QTest::addColumn<QVector<int>>("triggered");
        QTest::newRow("all enabled") << 0 << QVector<int> {0};
        QTest::newRow("first disabled") << 1 << QVector<int> {1};
        QTest::newRow("last enabled") << 5 << QVector<int> {5};
        QTest::newRow("none enabled") << 6 << QVector<int> {};
    }

    void oneShortcutReachesTheFirstEnabledOfSixActions()
    {
        QFETCH(int, disabled);
        QFETCH(QVector<int>, triggered);
        QObject owner;
        QVector<int> seen;
        for (int i = 0; i < 6; ++i) {
            auto *action = new QAction(QStringLiteral("Copy"), &owner);
            action->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
            action->setShortcutContext(Qt::ApplicationShortcut);
            connect(action, &QAction::triggered, this, [&seen, i] { seen.append(i); });
            add(action, "test.copy");
            action->setEnabled(i >= disabled);
        }
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTest::keyClick(m_window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(seen, triggered);
    }

    void checkableEntryShowsWhatTheActionMadeOfAClick()
    {
        QAction action;
        action.setCheckable(true);
        QAction *proxy = add(&action, "test.pane")->proxy();
        for (const bool checked : {true, false}) {
            proxy->trigger();
            QCOMPARE(action.isChecked(), checked);
            QCOMPARE(proxy->isChecked(), checked);
        }
        connect(&action, &QAction::triggered, &action, [&action] { action.setChecked(false); });
        proxy->trigger();
        QVERIFY(!proxy->isChecked());
    }

    void entryIsHiddenWithoutActions()
    {
        QAction action;
        Host::ActionCommand *command = add(&action, "test.a");
        QVERIFY(command->proxy()->isVisible());
        m_service->unregisterAction(nullptr, CId("test.a"));
        m_service->unregisterAction(nullptr, CId("test.unknown"));
        QVERIFY(command->proxy()->isVisible());
        m_service->unregisterAction(&action, CId("test.a"));
        QVERIFY(!command->proxy()->isVisible());
        {
            QAction passing;
            QCOMPARE(add(&passing, "test.a"), command);
            QVERIFY(command->proxy()->isVisible());
        }
        QVERIFY(!command->proxy()->isVisible());
        action.setEnabled(false); // no longer followed
        QVERIFY(command->actions().isEmpty());
    }

    void groupsStandInTheirOrderWithSeparators_data()
    {
        QTest::addColumn<QStringList>("added"); // "group:command"
        QTest::addColumn<QString>("menu");
        const auto row = [](const char *name, const char *added, const char *menu) {
            QTest::newRow(name) << QString::fromLatin1(added).split(QLatin1Char(' '))
                                << QString::fromLatin1(menu);
        };
        row("backwards", "g3:c g2:b g1:a", "Quit a - b - c");
        row("empty group between", "g3:c g1:a", "Quit a - c");
        row("mixed", "g2:b g1:a g2:c g1:d", "Quit a d - b c");
        row("unknown group comes last", "other:x g3:c", "Quit c - x");
        row("command that is there stays", "g1:a g1:b g1:a g2:a", "Quit a b");
    }

    void groupsStandInTheirOrderWithSeparators()
    {
        QFETCH(QStringList, added);
        QFETCH(QString, menu);
        QMenu *real = m_window->menuBar()->addMenu(QStringLiteral("Menu"));
        real->addAction(QStringLiteral("Quit"));
        Host::ActionContainer *container = m_service->createContainer(CId("test.menu"), real);
        for (const char *group : {"g1", "g2", "g3"}) {
            m_service->addGroup(CId("test.menu"), CId(group));
        }
        for (const QString &entry : qAsConst(added)) {
            const QStringList parts = entry.split(QLatin1Char(':'));
            container->addAction(add(parts.at(1)), CId(qPrintable(parts.at(0))));
        }
        QCOMPARE(texts(*real).join(QLatin1Char(' ')), menu);
    }

    void nullAndAbsentThingsDoNoHarm()
    {
        m_guard.expectLogEntry(Core::Logging::ELogLevel::Fault,
                               QStringLiteral("vantrel.viewer.menuService"),
                               QStringLiteral("No action given to register as \"test.null\"."));
        QCOMPARE(add(nullptr, "test.null"), nullptr);
        QCOMPARE(m_service->actionContainer(CId("test.none")), nullptr);
        m_service->addGroup(CId("test.none"), CId("g"));
        Host::ActionContainer *bare = m_service->createContainer(CId("test.bare"), nullptr);
        QCOMPARE(m_service->actionContainer(CId("test.bare")), bare);
        bare->addAction(add(QStringLiteral("a")), CId("g"));
        bare->addAction(nullptr, CId("g"));
        QMenu *menu = m_window->menuBar()->addMenu(QStringLiteral("Menu"));
        Host::ActionContainer *container = m_service->createContainer(CId("test.menu"), menu);
        container->addAction(add(QStringLiteral("a")), CId("g"));
        m_window.reset();
        QCOMPARE(container->menu(), nullptr);
        container->addAction(add(QStringLiteral("b")), CId("g"));
    }

    void deletesActionsWithoutParentWhenItEnds()
    {
        QObject owner;
        const QPointer<QAction> orphan(new QAction);
        const QPointer<QAction> owned(new QAction(&owner));
        QAction unregistered;
        add(orphan, "test.a");
        add(orphan, "test.b");
        add(owned, "test.a");
        add(&unregistered, "test.a");
        m_service->unregisterAction(&unregistered, CId("test.a"));
        m_service.reset();
        QVERIFY(orphan.isNull());
        QVERIFY(!owned.isNull());
    }

private:
    Tests::WarningGuard m_guard;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<Host::MenuService> m_service;
};

QTEST_MAIN(TestMenuService)
#include "tst_menuservice.moc"
