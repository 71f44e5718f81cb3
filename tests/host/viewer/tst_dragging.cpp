// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/settingsfolder.h"
#include "support/warningguard.h"

#include <host/viewer/mainwindow.h>
#include <host/viewer/panecommands.h>
#include <host/viewer/viewerapplication.h>

#include <QDockWidget>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickView>
#include <QTableView>
#include <QtTest>

#include <algorithm>

using Viewer::ViewerApplication;

namespace {

constexpr int fullNameRole = 288;

QString path(const char *name)
{
    return QLatin1String("@CameraDevice/") + QLatin1String(name);
}

} // namespace

/// A window of somebody else's, out of which the path of a feature can be dragged as a text.
class Foreign final : public QLabel
{
    Q_OBJECT

public:
    QVector<Qt::DropAction> offers; // what the places below the pointer would do with it
    bool ended = false;

protected:
    void mouseMoveEvent(QMouseEvent * /*event*/) override
    {
        auto *drag = new QDrag(this);
        auto *text = new QMimeData;
        text->setText(path("BlackLevel"));
        drag->setMimeData(text);
        connect(drag, &QDrag::actionChanged, this,
                [this](Qt::DropAction offer) { offers.append(offer); });
        drag->exec(Qt::CopyAction | Qt::MoveAction);
        ended = true;
    }
};

/// Tabs of a user's own, made with a real pointer: rows dragged out of the table of All, foreign
/// things refused, rows put in another order, all of it found again by the next viewer.
class DraggingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        start();
    }

    void init()
    {
        m_guard.begin();
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void cleanupTestCase()
    {
        stop();
    }

    void takesRowsOfTheTableIntoTheWindow()
    {
        Viewer::PaneCommands(m_viewer->window()).select(path("Gain"));
        auto *open = dock("All")->findChild<QPushButton *>(QStringLiteral("addNewFavoriteButton"));
        QTest::mouseClick(open, Qt::LeftButton);
        QTRY_VERIFY(tabsWindow());
        QVERIFY(QTest::qWaitForWindowExposed(tabsWindow()));

        clickInWindow("textField");
        xdotool({QStringLiteral("type"), QStringLiteral("Light")});
        QTRY_COMPARE(item("textField")->property("text").toString(), QStringLiteral("Light"));
        drag(nameCell("All", path("Gain")), middleOf("dragAndDrop"));
        QTRY_VERIFY(item("feature0"));
        drag(nameCell("All", path("GainAuto")), middleOf("dragAndDrop"));
        QTRY_VERIFY(item("feature1"));
    }

    void refusesADragFromAnotherWindow()
    {
        Foreign foreign;
        foreign.setGeometry(20, 900, 200, 100);
        foreign.show();
        QVERIFY(QTest::qWaitForWindowExposed(&foreign));
        drag(foreign.mapToGlobal(foreign.rect().center()), middleOf("dragAndDrop"));
        QTRY_VERIFY(foreign.ended);
        QCOMPARE(foreign.offers, QVector<Qt::DropAction> {Qt::IgnoreAction});
        QVERIFY(!item("feature2"));
    }

    void confirmsTheTab()
    {
        clickInWindow("addButton");
        QTRY_VERIFY(dock("User0")->isVisible());
        QCOMPARE(dock("User0")->windowTitle(), QStringLiteral("Features – Light"));
        Viewer::PaneCommands(m_viewer->window()).showPane(QStringLiteral("User0"));
        QTRY_COMPARE(rows("User0"), QStringList({path("Gain"), path("GainAuto")}));
        const QTableView *list = table("User0");
        QTRY_VERIFY(list->indexWidget(list->model()->index(0, 1)));
    }

    void putsTheRowsInAnotherOrder()
    {
        drag(nameCell("User0", path("GainAuto")), nameCell("User0", path("Gain")));
        QTRY_COMPARE(rows("User0"), QStringList({path("GainAuto"), path("Gain")}));
    }

    void findsTheTabAgain()
    {
        stop();
        start();
        QTRY_COMPARE(dock("User0")->windowTitle(), QStringLiteral("Features – Light"));
        Viewer::PaneCommands(m_viewer->window()).showPane(QStringLiteral("User0"));
        QTRY_COMPARE(rows("User0"), QStringList({path("GainAuto"), path("Gain")}));
    }

private:
    void start()
    {
        m_viewer.reset(new ViewerApplication({}));
        m_viewer->start(QStringLiteral(PLUGIN_FOLDER));
        QVERIFY(QTest::qWaitForWindowExposed(m_viewer->window()));
        m_viewer->window()->move(0, 0);
        m_viewer->window()->activateWindow();
    }

    void stop()
    {
        m_viewer->shutDown();
        m_viewer.reset();
    }

    QDockWidget *dock(const char *pane) const
    {
        return m_viewer->window()->findChild<QDockWidget *>(QLatin1String("Tessera.Widget.")
                                                            + QLatin1String(pane));
    }

    QTableView *table(const char *pane) const
    {
        const auto tables =
            dock(pane)->findChildren<QTableView *>(QStringLiteral("tesseraTableView"));
        const auto shown = std::find_if(tables.begin(), tables.end(),
                                        [](const QTableView *each) { return each->isVisible(); });
        return shown == tables.end() ? nullptr : *shown;
    }

    QStringList rows(const char *pane) const
    {
        QStringList names;
        const QTableView *list = table(pane);
        names.reserve(list ? list->model()->rowCount() : 0);
        for (int row = 0; list && row < list->model()->rowCount(); ++row) {
            names.append(list->model()->index(row, 0).data(fullNameRole).toString());
        }
        return names;
    }

    /// The middle of the name on the screen.
    QPoint nameCell(const char *pane, const QString &fullName) const
    {
        const QTableView *list = table(pane);
        const QModelIndex name = list->model()->index(rows(pane).indexOf(fullName), 0);
        return list->viewport()->mapToGlobal(list->visualRect(name).center());
    }

    static QQuickView *tabsWindow()
    {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        const auto shown = std::find_if(windows.begin(), windows.end(), [](QWindow *window) {
            return window->isVisible() && qobject_cast<QQuickView *>(window);
        });
        return shown == windows.end() ? nullptr : qobject_cast<QQuickView *>(*shown);
    }

    static QQuickItem *item(const char *name)
    {
        return itemBelow(tabsWindow()->rootObject(), QLatin1String(name));
    }

    // What a list makes is no child of its objects, but of its items.
    static QQuickItem *itemBelow(QQuickItem *item, const QString &name)
    {
        if (item->objectName() == name) {
            return item;
        }
        const QList<QQuickItem *> parts = item->childItems();
        for (QQuickItem *part : parts) {
            if (QQuickItem *found = itemBelow(part, name)) {
                return found;
            }
        }
        return nullptr;
    }

    static QPoint middleOf(const char *name)
    {
        const QQuickItem *part = item(name);
        const QPointF middle = part->mapToScene({part->width() / 2, part->height() / 2});
        return tabsWindow()->mapToGlobal(middle.toPoint());
    }

    static void clickInWindow(const char *name)
    {
        const QPoint place = middleOf(name);
        xdotool({QStringLiteral("mousemove"), QString::number(place.x()),
                 QString::number(place.y()), QStringLiteral("click"), QStringLiteral("1")});
    }

    /// A drag with some way in between, as a hand makes it.
    static void drag(QPoint from, QPoint to)
    {
        QStringList script;
        const auto move = [&script](QPoint place) {
            script += {QStringLiteral("mousemove"), QString::number(place.x()),
                       QString::number(place.y()), QStringLiteral("sleep"), QStringLiteral("0.05")};
        };
        constexpr int steps = 8;
        move(from);
        script += {QStringLiteral("mousedown"), QStringLiteral("1")};
        for (int step = 1; step <= steps; ++step) {
            move(from + (to - from) * step / steps);
        }
        move(to + QPoint(1, 1));
        script += {QStringLiteral("sleep"), QStringLiteral("0.2"), QStringLiteral("mouseup"),
                   QStringLiteral("1")};
        xdotool(script);
    }

    /// A drag has an event loop of its own, in which the pointer must go on moving.
    static void xdotool(const QStringList &arguments)
    {
        QProcess program;
        program.start(QStringLiteral("xdotool"), arguments);
        QTRY_COMPARE(program.state(), QProcess::NotRunning);
        QCOMPARE(program.exitCode(), 0);
        QCoreApplication::processEvents();
    }

    Tests::SettingsFolder m_settings;
    Tests::WarningGuard m_guard;
    QScopedPointer<ViewerApplication> m_viewer;
};

QTEST_MAIN(DraggingTest)
#include "tst_dragging.moc"
