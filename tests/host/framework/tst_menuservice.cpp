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
#include <QSignalSpy>
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

    void takesOverWhatTheFirstActionIs()
    {
        QAction action(QStringLiteral("Copy"));
        action.setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
        action.setShortcutContext(Qt::ApplicationShortcut);
        action.setCheckable(true);
        action.setChecked(true);
        action.setEnabled(false);
        QAction *proxy = add(&action, "test.copy")->proxy();
        QCOMPARE(proxy->text(), QStringLiteral("Copy"));
        QCOMPARE(proxy->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+C")));
        QCOMPARE(proxy->shortcutContext(), Qt::ApplicationShortcut);
        QVERIFY(proxy->isCheckable());
        QVERIFY(proxy->isChecked());
        QVERIFY(!proxy->isEnabled());
        QVERIFY(m_window->actions().contains(proxy));
    }

    void followsEnabledCheckedAndVisibleButNotTheText()
    {
        QAction action(QStringLiteral("old"));
        action.setCheckable(true);
        Host::ActionCommand *command = add(&action, "test.a");
        action.setText(QStringLiteral("new"));
        action.setChecked(true);
        QVERIFY(command->proxy()->isChecked());
        action.setVisible(false);
        QVERIFY(!command->proxy()->isVisible());
        action.setEnabled(false);
        QVERIFY(!command->proxy()->isEnabled());
        QCOMPARE(command->proxy()->text(), QStringLiteral("old"));
        command->setAttribute(1);
        QCOMPARE(command->proxy()->text(), QStringLiteral("old"));
        command->setAttribute(2);
        QCOMPARE(command->proxy()->text(), QStringLiteral("new"));
    }

    void forwardsToTheFirstEnabledAction_data()
    {
        QTest::addColumn<QVector<bool>>("enabled");
        QTest::addColumn<int>("triggered");
        QTest::newRow("all") << QVector<bool> {true, true, true} << 0;
        QTest::newRow("second") << QVector<bool> {false, true, true} << 1;
        QTest::newRow("last") << QVector<bool> {false, false, true} << 2;
        QTest::newRow("none") << QVector<bool> {false, false, false} << -1;
    }

    void forwardsToTheFirstEnabledAction()
    {
        QFETCH(QVector<bool>, enabled);
        QFETCH(int, triggered);
        QObject owner;
        m_seen = -1;
        for (int i = 0; i < enabled.size(); ++i) {
            auto *action = new QAction(&owner);
            connect(action, &QAction::triggered, this, [this, i] { m_seen = i; });
            add(action, "test.many");
            action->setEnabled(enabled.at(i));
        }
        auto *command = dynamic_cast<Host::ActionCommand *>(m_service->command(CId("test.many")));
        QCOMPARE(command->actions().size(), enabled.size());
        command->proxy()->trigger();
        QCOMPARE(m_seen, triggered);
    }

    void shortcutOfSixActionsWorksOnce()
    {
        QObject owner;
        m_seen = 0;
        for (int i = 0; i < 6; ++i) {
            auto *action = new QAction(QStringLiteral("Copy"), &owner);
            action->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
            action->setShortcutContext(Qt::ApplicationShortcut);
            connect(action, &QAction::triggered, this, [this] { ++m_seen; });
            add(action, "test.copy");
        }
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTest::keyClick(m_window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_seen, 1);
    }

    void clickOnACheckableEntryTogglesActionAndEntryTogether()
    {
        QAction action(QStringLiteral("pane"));
        action.setCheckable(true);
        QAction *proxy = add(&action, "test.pane")->proxy();
        QSignalSpy spy(&action, &QAction::triggered);
        proxy->trigger();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toBool(), true);
        QVERIFY(action.isChecked());
        QVERIFY(proxy->isChecked());
        proxy->trigger();
        QVERIFY(!action.isChecked());
        QVERIFY(!proxy->isChecked());
    }

    void entryKeepsTheStateOfAnActionThatRefuses()
    {
        QAction action;
        action.setCheckable(true);
        connect(&action, &QAction::triggered, &action, [&action] { action.setChecked(false); });
        QAction *proxy = add(&action, "test.pane")->proxy();
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

    void reportsANullAction()
    {
        m_guard.expectLogEntry(Core::Logging::ELogLevel::Fault,
                               QStringLiteral("vantrel.viewer.menuService"),
                               QStringLiteral("No action given to register as \"test.null\"."));
        QCOMPARE(add(nullptr, "test.null"), nullptr);
    }

    void groupsStandInTheirOrderWithSeparators_data()
    {
        QTest::addColumn<QStringList>("added"); // "group:command"
        QTest::addColumn<QString>("menu");
        const auto row = [](const char *name, const char *added, const char *menu) {
            QTest::newRow(name) << QString::fromLatin1(added).split(QLatin1Char(' '))
                                << QString::fromLatin1(menu);
        };
        row("one group", "g1:a g1:b", "Quit a b");
        row("in order", "g1:a g2:b g3:c", "Quit a - b - c");
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
        QCOMPARE(m_service->actionContainer(CId("test.menu")), container);
        QCOMPARE(container->menu(), real);
        for (const QString &entry : qAsConst(added)) {
            const QStringList parts = entry.split(QLatin1Char(':'));
            container->addAction(add(parts.at(1)), CId(qPrintable(parts.at(0))));
        }
        QCOMPARE(texts(*real).join(QLatin1Char(' ')), menu);
    }

    void containersMayBeAbsentOrWithoutMenu()
    {
        QCOMPARE(m_service->actionContainer(CId("test.none")), nullptr);
        m_service->addGroup(CId("test.none"), CId("g"));
        Host::ActionContainer *container = m_service->createContainer(CId("test.bare"), nullptr);
        QCOMPARE(m_service->createContainer(CId("test.bare"), nullptr), container);
        container->addAction(add(QStringLiteral("a")), CId("g"));
        container->addAction(nullptr, CId("g"));
        QCOMPARE(container->menu(), nullptr);
    }

    void deletesActionsWithoutParentWhenItEnds()
    {
        QObject owner;
        const QPointer<QAction> orphan(new QAction);
        const QPointer<QAction> owned(new QAction(&owner));
        const QPointer<QAction> unregistered(new QAction);
        add(orphan, "test.a");
        add(orphan, "test.b");
        add(owned, "test.a");
        add(unregistered, "test.a");
        m_service->unregisterAction(unregistered, CId("test.a"));
        m_service.reset();
        QVERIFY(orphan.isNull());
        QVERIFY(!owned.isNull());
        QVERIFY(!unregistered.isNull());
        delete unregistered;
    }

    void outlivesItsWindow()
    {
        QMenu *menu = m_window->menuBar()->addMenu(QStringLiteral("Menu"));
        Host::ActionContainer *container = m_service->createContainer(CId("test.menu"), menu);
        container->addAction(add(QStringLiteral("a")), CId("g"));
        m_window.reset();
        QCOMPARE(container->menu(), nullptr);
        container->addAction(add(QStringLiteral("b")), CId("g"));
        m_service->command(CId("test.a"))->setAttribute(2);
    }

private:
    Tests::WarningGuard m_guard;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<Host::MenuService> m_service;
    int m_seen = 0; // number or count of triggered actions
};

QTEST_MAIN(TestMenuService)
#include "tst_menuservice.moc"
