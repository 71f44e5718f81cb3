// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/settingsfolder.h"
#include "support/warningguard.h"

#include <host/simulation/simulatedcollection.h>
#include <host/simulation/simulatedsource.h>
#include <host/viewer/mainwindow.h>
#include <host/viewer/panecommands.h>
#include <host/viewer/sourcesession.h>
#include <host/viewer/viewerapplication.h>

#include <QDockWidget>
#include <QProcess>
#include <QQuickItem>
#include <QQuickView>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

#include <algorithm>

/// A test over the running viewer with the built module and the simulated camera, started anew for
/// each function and watched for warnings.
class ViewerTest : public QObject
{
    Q_OBJECT

protected:
    ViewerTest() = default;

    static QString path(const char *feature)
    {
        return QLatin1String("@CameraDevice/") + QLatin1String(feature);
    }

    Viewer::MainWindow *window() const
    {
        return m_viewer->window();
    }

    /// Brings the pane to the front.
    Viewer::PaneCommands pane(const QByteArray &name = "All") const
    {
        Viewer::PaneCommands commands(window());
        commands.showPane(QLatin1String(name));
        return commands;
    }

    QDockWidget *dock(const QByteArray &pane) const
    {
        return window()->findChild<QDockWidget *>(QLatin1String("Tessera.Widget.")
                                                  + QLatin1String(pane));
    }

    /// A widget of the browser that the pane shows: it keeps one for each source.
    template<typename Widget = QWidget>
    Widget *widget(const QByteArray &name, const QByteArray &pane = "All") const
    {
        const QDockWidget *place = dock(pane);
        const auto found = place->findChildren<Widget *>(QLatin1String(name));
        const auto shown = std::find_if(found.begin(), found.end(), [place](const QWidget *each) {
            return each->isVisibleTo(place);
        });
        return shown == found.end() ? nullptr : *shown;
    }

    QTreeView *tree() const
    {
        return widget<QTreeView>("treeView");
    }

    QTableView *table(const QByteArray &pane = "All") const
    {
        return widget<QTableView>("tesseraTableView", pane);
    }

    QVariant deviceValue(const char *feature) const
    {
        const Viewer::SourceSession *session = m_viewer->session();
        return session->source(session->activeIndex())->collection()->deviceValue(path(feature));
    }

    /// The window Edit Feature Tabs while it is shown.
    static QQuickView *tabsWindow()
    {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        const auto shown = std::find_if(windows.begin(), windows.end(), [](const QWindow *each) {
            return each->isVisible() && qobject_cast<const QQuickView *>(each);
        });
        return shown == windows.end() ? nullptr : qobject_cast<QQuickView *>(*shown);
    }

    /// The key goes to whatever has the keyboard, the way that it goes from the window system on.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    }

    static void type(const QString &text)
    {
        for (const QChar letter : text) {
            QTest::keyClick(QGuiApplication::focusWindow(), letter.toLatin1());
        }
    }

    /// A drag with some way in between, as a hand makes it.
    static void drag(QPoint from, QPoint to)
    {
        constexpr int steps = 8;
        QVector<QStringList> way;
        way.reserve(steps + 7);
        way += {moveTo(from), pointer("mousedown")};
        for (int step = 1; step <= steps; ++step) {
            way.append(moveTo(from + (to - from) * step / steps));
        }
        way += QVector<QStringList>(4, moveTo(to + QPoint(1, 1)));
        way.append(pointer("mouseup"));
        move(way);
    }

    static QStringList moveTo(QPoint place)
    {
        return {QStringLiteral("mousemove"), QString::number(place.x()),
                QString::number(place.y())};
    }

    static QStringList pointer(const char *act)
    {
        return {QLatin1String(act), QStringLiteral("1")};
    }

    /// A drag has an event loop of its own, in which the pointer must go on moving; and it moves
    /// no faster than the viewer can follow.
    static void move(const QVector<QStringList> &way)
    {
        QTimer hand;
        int step = 0;
        connect(&hand, &QTimer::timeout, &hand, [&] {
            if (step == way.size()) {
                hand.stop();
            } else {
                QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), way.at(step++)), 0);
            }
        });
        hand.start(40);
        QTRY_VERIFY_WITH_TIMEOUT(!hand.isActive(), 30000);
    }

    void start()
    {
        m_viewer.reset(new Viewer::ViewerApplication({}));
        m_viewer->start(QStringLiteral(PLUGIN_FOLDER));
        // Without a window manager nobody else gives the window the focus.
        window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window()));
    }

    QScopedPointer<Viewer::ViewerApplication> m_viewer;
    Tests::WarningGuard m_guard;

protected Q_SLOTS:
    void init()
    {
        m_settings.reset(new Tests::SettingsFolder);
        m_guard.begin();
        start();
    }

    void cleanup()
    {
        m_viewer->shutDown();
        m_viewer.reset();
        m_guard.verify();
    }

private:
    QScopedPointer<Tests::SettingsFolder> m_settings;
};
