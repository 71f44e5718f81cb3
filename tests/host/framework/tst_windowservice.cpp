// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/hostids.h"
#include "host/framework/menuservice.h"
#include "host/framework/windowservice.h"
#include "support/warningguard.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <memory>

using Core::CId;

namespace {

// A pane that notes what the service says of it when it is shown or hidden.
class Pane final : public QWidget
{
    Q_OBJECT

public:
    Pane(const Plugin::AppCore::IWindowService &service, const char *id)
        : m_service(service)
        , m_id(id)
    {
        setWindowTitle(QString::fromLatin1(id));
    }

    CId id() const
    {
        return m_id;
    }

    QStringList takeNotes()
    {
        return std::exchange(m_notes, {});
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        note("shown");
        QWidget::showEvent(event);
    }

    void hideEvent(QHideEvent *event) override
    {
        note("hidden");
        QWidget::hideEvent(event);
    }

private:
    void note(const char *what)
    {
        m_notes.append(QLatin1String(what)
                       + QLatin1String(m_service.isDockWidgetClosed(m_id) ? " closed" : " open"));
    }

    const Plugin::AppCore::IWindowService &m_service;
    CId m_id;
    QStringList m_notes;
};

} // namespace

class TestWindowService : public QObject
{
    Q_OBJECT

private:
    QDockWidget *dock(const Pane &pane) const
    {
        return m_window->findChild<QDockWidget *>(pane.id().toString());
    }

    void dockIn(Pane &pane, bool visible)
    {
        m_service->addDockWidget(pane.id(), &pane, 3, visible, false);
    }

    void showWindow()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    QStringList windowMenu() const
    {
        QStringList texts;
        const QList<QAction *> actions = m_menu->actions();
        for (const QAction *action : actions) {
            if (action->isVisible()) {
                texts.append(action->text() + QLatin1String(action->isChecked() ? " on" : " off"));
            }
        }
        return texts;
    }

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_window = std::make_unique<QMainWindow>();
        m_window->resize(800, 600);
        m_menu = m_window->menuBar()->addMenu(QStringLiteral("Window"));
        m_menuService.reset(new Host::MenuService(m_window.get()));
        m_menuService->createContainer(CId(Host::Ids::windowMenu), m_menu);
        m_service = std::make_unique<Host::WindowService>(m_window.get(), m_menuService);
        m_all = std::make_unique<Pane>(*m_service, "Test.All");
        m_user = std::make_unique<Pane>(*m_service, "Test.User");
    }

    void cleanup()
    {
        m_all.reset();
        m_user.reset();
        m_service.reset();
        m_menuService.reset();
        m_window.reset();
        m_guard.verify();
    }

    void docksAsToldOrAsWishedBefore_data()
    {
        QTest::addColumn<QVariant>("wished");
        QTest::addColumn<bool>("added");
        QTest::addColumn<bool>("open");
        QTest::addColumn<QStringList>("entries"); // only panes added visible have one
        const QStringList none;
        QTest::newRow("open") << QVariant() << true << true
                              << QStringList {QStringLiteral("R&&D on")};
        QTest::newRow("closed") << QVariant() << false << false << none;
        QTest::newRow("user pane that was open") << QVariant(true) << false << true << none;
        QTest::newRow("not wanted")
            << QVariant(false) << true << false << QStringList {QStringLiteral("R&&D off")};
    }

    void docksAsToldOrAsWishedBefore()
    {
        QFETCH(QVariant, wished);
        QFETCH(bool, added);
        QFETCH(bool, open);
        if (wished.isValid()) {
            m_service->setDockWidgetVisible(m_user->id(), wished.toBool());
        }
        m_service->setDockWidgetTitle(m_user->id(), QStringLiteral("R&&D"));
        QVERIFY(m_service->isDockWidgetClosed(m_user->id())); // unknown as yet
        dockIn(*m_user, added);
        showWindow();
        QCOMPARE(m_service->isDockWidgetClosed(m_user->id()), !open);
        QCOMPARE(m_user->takeNotes().join(QString()), QLatin1String(open ? "shown open" : ""));
        QCOMPARE(dock(*m_user)->windowTitle(), QStringLiteral("R&&D"));
        QTEST(windowMenu(), "entries");
    }

    void stateChangesBeforeThePaneHearsOfIt_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("service") << 0;
        QTest::newRow("button of the dock") << 1;
        QTest::newRow("list of docks of the window") << 2;
        QTest::newRow("entry of the Window menu") << 3;
    }

    void stateChangesBeforeThePaneHearsOfIt()
    {
        QFETCH(int, way);
        dockIn(*m_all, true);
        showWindow();
        m_all->takeNotes();
        const auto toggle = [this, way] {
            const bool closed = m_service->isDockWidgetClosed(m_all->id());
            if (way == 1 && !closed) {
                QTest::mouseClick(dock(*m_all)->findChild<QAbstractButton *>(
                                      QStringLiteral("qt_dockwidget_closebutton")),
                                  Qt::LeftButton);
            } else if (way < 2) {
                m_service->setDockWidgetVisible(m_all->id(), closed);
            } else {
                (way == 2 ? dock(*m_all)->toggleViewAction() : m_menu->actions().at(0))->trigger();
            }
        };
        toggle();
        QCOMPARE(m_all->takeNotes(), {QStringLiteral("hidden closed")});
        QCOMPARE(windowMenu(), {QStringLiteral("Test.All off")});
        toggle();
        QCOMPARE(m_all->takeNotes(), {QStringLiteral("shown open")});
        QCOMPARE(windowMenu(), {QStringLiteral("Test.All on")});
    }

    void openedPaneComesToTheFrontAndTheOneBehindStaysOpen()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, true);
        showWindow();
        QCOMPARE(m_window->dockWidgetArea(dock(*m_all)), Qt::RightDockWidgetArea);
        QCOMPARE(m_window->tabifiedDockWidgets(dock(*m_all)), {dock(*m_user)});
        QVERIFY(!m_all->visibleRegion().isEmpty());
        QVERIFY(!m_service->isDockWidgetClosed(m_user->id()));
        m_service->setDockWidgetVisible(m_user->id(), true);
        QTRY_VERIFY(!m_user->visibleRegion().isEmpty());
        QVERIFY(!m_service->isDockWidgetClosed(m_all->id()));
        m_all->takeNotes();
        m_user->takeNotes();
        m_window->close(); // closes no dock
        QCOMPARE(m_user->takeNotes(), {QStringLiteral("hidden open")});
        QVERIFY(!m_service->isDockWidgetClosed(m_all->id()));
    }

    void stateOutlastsFloatingAndARestoredLayout()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, true);
        showWindow();
        for (const bool floating : {true, false}) {
            dock(*m_all)->setFloating(floating);
            QCOMPARE(windowMenu().constFirst(), QStringLiteral("Test.All on"));
        }
        m_service->setDockWidgetVisible(m_user->id(), false);
        const QByteArray state = m_window->saveState();
        m_service->setDockWidgetVisible(m_user->id(), true);
        QVERIFY(m_window->restoreState(state));
        QCOMPARE(windowMenu().join(QLatin1Char(' ')), QStringLiteral("Test.All on Test.User off"));
        QCOMPARE(m_user->takeNotes().constLast(), QStringLiteral("hidden closed"));
    }

    void removingLeavesThePaneAndItsStateUntilItIsOut_data()
    {
        QTest::addColumn<bool>("visible");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("open") << true << QStringList {QStringLiteral("hidden open")};
        QTest::newRow("closed") << false << QStringList {};
    }

    void removingLeavesThePaneAndItsStateUntilItIsOut()
    {
        QFETCH(bool, visible);
        dockIn(*m_user, visible);
        dockIn(*m_all, true);
        showWindow();
        m_user->takeNotes();
        m_service->removeDockWidget(m_user->id());
        QStringList notes = m_user->takeNotes();
        notes.removeDuplicates();
        QTEST(notes, "expected");
        QCOMPARE(m_user->parentWidget(), nullptr);
        QVERIFY(m_service->isDockWidgetClosed(m_user->id()));
        QCOMPARE(windowMenu(), {QStringLiteral("Test.All on")});
        dockIn(*m_user, true); // again
        QCOMPARE(m_window->tabifiedDockWidgets(dock(*m_all)), {dock(*m_user)});
    }

    void refusesWhatCannotBeDocked()
    {
        const auto expect = [this](const QString &reason) {
            m_guard.expectLogEntry(Core::Logging::ELogLevel::Fault,
                                   QStringLiteral("vantrel.viewer.windowService"),
                                   QStringLiteral("Cannot add the dock \"Test.All\": ") + reason);
        };
        expect(QStringLiteral("there is no widget or no window"));
        m_service->addDockWidget(m_all->id(), nullptr, 3, true, false);
        dockIn(*m_all, true);
        expect(QStringLiteral("a dock with this id is there already"));
        dockIn(*m_all, true);
        const CId id = m_all->id();
        m_all.reset(); // a pane may go before its dock
        m_service->removeDockWidget(id);
        m_service->removeDockWidget(id);
        QVERIFY(m_service->isDockWidgetClosed(id));
    }

private:
    Tests::WarningGuard m_guard;
    std::unique_ptr<QMainWindow> m_window;
    QMenu *m_menu = nullptr; // by parent
    QSharedPointer<Host::MenuService> m_menuService;
    std::unique_ptr<Host::WindowService> m_service;
    std::unique_ptr<Pane> m_all;
    std::unique_ptr<Pane> m_user;
};

QTEST_MAIN(TestWindowService)
#include "tst_windowservice.moc"
