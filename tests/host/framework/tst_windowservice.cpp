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
#include <QPointer>
#include <QTabBar>
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

    // What was noted last.
    QString lastNote() const
    {
        return m_notes.isEmpty() ? QString() : m_notes.constLast();
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

    void showsVisiblePanesAndKeepsOthersClosed()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, false);
        showWindow();
        QCOMPARE(m_all->takeNotes(), {QStringLiteral("shown open")});
        QCOMPARE(m_user->takeNotes(), QStringList());
        QVERIFY(m_service->isDockWidgetClosed(m_user->id()));
        QVERIFY(!dock(*m_user)->isVisible());
        QCOMPARE(dock(*m_all)->windowTitle(), QStringLiteral("Test.All"));
        QCOMPARE(m_window->dockWidgetArea(dock(*m_all)), Qt::RightDockWidgetArea);
    }

    void unknownDockIsClosed()
    {
        QVERIFY(m_service->isDockWidgetClosed(CId("Test.Nobody")));
        m_service->removeDockWidget(CId("Test.Nobody"));
    }

    void remembersWhatWasAskedBeforeTheDockCame_data()
    {
        QTest::addColumn<bool>("wished");
        QTest::addColumn<bool>("added");
        QTest::newRow("user pane that was open") << true << false;
        QTest::newRow("pane that is not wanted") << false << true;
    }

    void remembersWhatWasAskedBeforeTheDockCame()
    {
        QFETCH(bool, wished);
        QFETCH(bool, added);
        m_service->setDockWidgetVisible(m_user->id(), wished);
        m_service->setDockWidgetTitle(m_user->id(), QStringLiteral("R&&D"));
        QVERIFY(m_service->isDockWidgetClosed(m_user->id()));
        dockIn(*m_user, added);
        showWindow();
        QCOMPARE(m_service->isDockWidgetClosed(m_user->id()), !wished);
        QCOMPARE(dock(*m_user)->isVisible(), wished);
        QCOMPARE(dock(*m_user)->windowTitle(), QStringLiteral("R&&D"));
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
        switch (way) {
        case 0:
            m_service->setDockWidgetVisible(m_all->id(), false);
            break;
        case 1: {
            auto *button = dock(*m_all)->findChild<QAbstractButton *>(
                QStringLiteral("qt_dockwidget_closebutton"));
            QTest::mouseClick(button, Qt::LeftButton);
            break;
        }
        case 2:
            dock(*m_all)->toggleViewAction()->trigger();
            break;
        default:
            m_menu->actions().constFirst()->trigger();
        }
        QCOMPARE(m_all->takeNotes(), {QStringLiteral("hidden closed")});
        QCOMPARE(windowMenu(), {QStringLiteral("Test.All off")});
        switch (way) {
        case 0:
        case 1:
            m_service->setDockWidgetVisible(m_all->id(), true);
            break;
        case 2:
            dock(*m_all)->toggleViewAction()->trigger();
            break;
        default:
            m_menu->actions().constFirst()->trigger();
        }
        QCOMPARE(m_all->takeNotes(), {QStringLiteral("shown open")});
        QCOMPARE(windowMenu(), {QStringLiteral("Test.All on")});
    }

    void dockBehindAnotherIsOpenAndTheFirstIsOnTop()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, true);
        showWindow();
        QCOMPARE(m_window->tabifiedDockWidgets(dock(*m_all)), {dock(*m_user)});
        QVERIFY(!m_all->visibleRegion().isEmpty());
        QVERIFY(m_user->visibleRegion().isEmpty());
        QVERIFY(!m_service->isDockWidgetClosed(m_user->id()));
        m_service->setDockWidgetVisible(m_user->id(), true);
        QTRY_VERIFY(!m_user->visibleRegion().isEmpty());
        QVERIFY(!m_service->isDockWidgetClosed(m_all->id()));
    }

    void openedUserPaneComesToTheFront()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, false);
        showWindow();
        m_service->setDockWidgetVisible(m_user->id(), true);
        QTRY_VERIFY(!m_user->visibleRegion().isEmpty());
        QCOMPARE(m_user->lastNote(), QStringLiteral("shown open"));
    }

    void closingTheWindowClosesNoDock()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, false);
        showWindow();
        m_all->takeNotes();
        m_window->close();
        QCOMPARE(m_all->takeNotes(), {QStringLiteral("hidden open")});
        QVERIFY(!m_service->isDockWidgetClosed(m_all->id()));
        QVERIFY(m_service->isDockWidgetClosed(m_user->id()));
    }

    void floatingEndsOpen()
    {
        dockIn(*m_all, true);
        showWindow();
        dock(*m_all)->setFloating(true);
        QVERIFY(!m_service->isDockWidgetClosed(m_all->id()));
        dock(*m_all)->setFloating(false);
        QCOMPARE(m_all->lastNote(), QStringLiteral("shown open"));
        QCOMPARE(windowMenu(), {QStringLiteral("Test.All on")});
    }

    void removingLeavesThePaneAndItsStateUntilItIsOut_data()
    {
        QTest::addColumn<bool>("visible");
        QTest::newRow("open") << true;
        QTest::newRow("closed") << false;
    }

    void removingLeavesThePaneAndItsStateUntilItIsOut()
    {
        QFETCH(bool, visible);
        dockIn(*m_all, true);
        dockIn(*m_user, visible);
        showWindow();
        m_user->takeNotes();
        m_service->removeDockWidget(m_user->id());
        QStringList notes = m_user->takeNotes();
        notes.removeDuplicates();
        const QStringList expected {QStringLiteral("hidden open")};
        QCOMPARE(notes, visible ? expected : QStringList());
        QCOMPARE(m_user->parentWidget(), nullptr);
        QCOMPARE(dock(*m_user), nullptr);
        QVERIFY(m_service->isDockWidgetClosed(m_user->id()));
        QCOMPARE(windowMenu(), {QStringLiteral("Test.All on")});
    }

    void removedPaneCanBeDockedAgain()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, true);
        m_service->removeDockWidget(m_all->id());
        dockIn(*m_all, true);
        showWindow();
        QVERIFY(m_all->isVisible());
        QCOMPARE(m_window->tabifiedDockWidgets(dock(*m_all)), {dock(*m_user)});
    }

    void menuListsPanesAddedVisibleUnderTheirPresentTitle()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, false);
        m_service->setDockWidgetTitle(m_all->id(), QStringLiteral("R&&D"));
        QCOMPARE(windowMenu(), {QStringLiteral("R&&D on")});
    }

    void layoutIsRestored()
    {
        dockIn(*m_all, true);
        dockIn(*m_user, true);
        showWindow();
        m_service->setDockWidgetVisible(m_user->id(), false);
        const QByteArray state = m_window->saveState();
        m_service->setDockWidgetVisible(m_user->id(), true);
        QVERIFY(m_window->restoreState(state));
        QVERIFY(m_service->isDockWidgetClosed(m_user->id()));
        QVERIFY(!m_service->isDockWidgetClosed(m_all->id()));
        QCOMPARE(m_user->lastNote(), QStringLiteral("hidden closed"));
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
    }

    void paneMayGoBeforeItsDock()
    {
        dockIn(*m_all, true);
        const CId id = m_all->id();
        m_all.reset();
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
