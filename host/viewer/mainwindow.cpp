// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "currentfeature.h"
#include "devicesview.h"
#include "documentationview.h"
#include "featurecontextmenu.h"
#include "focusmark.h"
#include "languagemenu.h"
#include "logview.h"
#include "sourcesession.h"
#include "visibilitylevel.h"

#include <host/framework/hostids.h>
#include <host/framework/menuservice.h>
#include <host/framework/pluginloader.h>
#include <host/framework/windowservice.h>
#include <plugin/contract/appcore/actioncontainer.h>
#include <plugin/contract/core/id.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace Viewer {

using Core::AppCoreComponents::CContext;

namespace {

QDockWidget *addDock(QMainWindow *window, const QString &name, const QString &title,
                     QWidget *content, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, window);
    dock->setObjectName(name);
    dock->setWidget(content);
    window->addDockWidget(area, dock);
    return dock;
}

// What stands in a dock behind another counts as visible, but nobody sees it.
bool isBehind(const QWidget *widget)
{
    while (widget && !qobject_cast<const QDockWidget *>(widget)) {
        widget = widget->parentWidget();
    }
    return widget && widget->visibleRegion().isEmpty();
}

bool isTabStop(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.isVisible()
        && !widget.focusProxy() && !isBehind(&widget);
}

QString layoutKey(const char *name)
{
    return QStringLiteral("Viewer/") + QLatin1String(name);
}

} // namespace

MainWindow::MainWindow(SourceSession *session, CurrentFeature *feature)
    : m_session(session)
    , m_feature(feature)
    , m_menuService(QSharedPointer<Host::MenuService>::create(this))
    , m_windowService(QSharedPointer<Host::WindowService>::create(this, m_menuService))
    , m_visibilityLevel(new VisibilityLevel(this))
{
    setObjectName(QStringLiteral("viewerWindow"));
    setWindowTitle(QStringLiteral("Tessera Viewer"));
    setDockNestingEnabled(true);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    const double scale = logicalDpiX() / 96.0;
    resize(qRound(1200 * scale), qRound(800 * scale));
    makeDocks();
    makeMenus();
    statusBar();
    connect(session, &SourceSession::opened, m_visibilityLevel, &VisibilityLevel::tellBrowsers);
}

MainWindow::~MainWindow() = default;

QSharedPointer<Host::MenuService> MainWindow::menuService() const
{
    return m_menuService;
}

QSharedPointer<Host::WindowService> MainWindow::windowService() const
{
    return m_windowService;
}

VisibilityLevel *MainWindow::visibilityLevel() const
{
    return m_visibilityLevel;
}

void MainWindow::setLoader(Host::PluginLoader *loader)
{
    m_loader = loader;
}

void MainWindow::restoreLayout()
{
    QSettings settings;
    restoreGeometry(settings.value(layoutKey("Geometry")).toByteArray());
    const QByteArray state = settings.value(layoutKey("State")).toByteArray();
    if (restoreState(state)) {
        m_shownState = state;
    } else {
        arrangeDocks();
    }
}

// A window that is not shown yet takes up which docks are open, but not how large they are.
void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!m_shownState.isEmpty()) {
        restoreState(std::exchange(m_shownState, {}));
    }
}

void MainWindow::saveLayout() const
{
    QSettings settings;
    settings.setValue(layoutKey("Geometry"), saveGeometry());
    settings.setValue(layoutKey("State"), saveState());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_loader && !m_loader->mayClose(false)) {
        event->ignore();
        return;
    }
    saveLayout();
    QMainWindow::closeEvent(event);
}

void MainWindow::makeDocks()
{
    m_devices = new DevicesView(m_session, this);
    QDockWidget *devices = addDock(this, QStringLiteral("Viewer.Dock.Devices"), tr("Devices"),
                                   m_devices, Qt::LeftDockWidgetArea);
    QDockWidget *documentation =
        addDock(this, QStringLiteral("Viewer.Dock.Documentation"), tr("Documentation"),
                new DocumentationView(m_feature, this), Qt::BottomDockWidgetArea);
    QDockWidget *log = addDock(this, QStringLiteral("Viewer.Dock.Log"), tr("Log"),
                               new LogView(this), Qt::BottomDockWidgetArea);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    m_docks = {devices, documentation, log};
    new FocusMark(documentation->widget());
    new FocusMark(log->widget());
}

// The first start: most of the window belongs to the features.
void MainWindow::arrangeDocks()
{
    QDockWidget *devices = m_docks.at(0);
    QDockWidget *documentation = m_docks.at(1);
    QDockWidget *log = m_docks.at(2);
    const auto docks = findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    const auto features = std::find_if(docks.cbegin(), docks.cend(), [this](QDockWidget *dock) {
        return dockWidgetArea(dock) == Qt::RightDockWidgetArea && !dock->isHidden();
    });
    if (features != docks.cend()) {
        resizeDocks({devices, *features}, {width() * 3 / 10, width() * 7 / 10}, Qt::Horizontal);
        resizeDocks({*features, documentation}, {height() * 3 / 4, height() / 4}, Qt::Vertical);
    }
    resizeDocks({documentation, log}, {width() * 3 / 10, width() * 4 / 10}, Qt::Horizontal);
}

// The base would also stop where nobody can see it.
bool MainWindow::focusNextPrevChild(bool next)
{
    QWidget *from = focusWidget() ? focusWidget() : this;
    QWidget *target = from;
    do {
        target = next ? target->nextInFocusChain() : target->previousInFocusChain();
    } while (target != from && !isTabStop(*target));
    if (target == from) {
        return false;
    }
    target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

QMenu *MainWindow::makeContainerMenu(const Core::CId &id, const QString &title)
{
    QMenu *menu = menuBar()->addMenu(title);
    m_menuService->createContainer(id, menu);
    return menu;
}

void MainWindow::makeMenus()
{
    const Core::CId cameraId(Host::Ids::cameraMenu);
    QMenu *camera = makeContainerMenu(cameraId, tr("&Camera"));
    camera->addActions(m_devices->sourceActions());
    camera->addSeparator();
    m_menuService->addGroup(cameraId, Core::CId(Host::Ids::cameraFeaturesGroup));
    auto *quit = new QAction(tr("&Quit"), this);
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);
    m_menuService->actionContainer(cameraId)->addAction(
        m_menuService->registerAction(quit, Core::CId("VantrelViewer.Quit"),
                                      CContext(Core::CId(Host::Ids::globalContext))),
        Core::CId("VantrelViewer.Group.Camera.Application"));

    QMenu *view = menuBar()->addMenu(tr("&View"));
    // No section: a style makes one as high as the font, and other scripts are higher.
    view->addAction(tr("Visibility Level"))->setEnabled(false);
    view->addActions(m_visibilityLevel->actions());
    view->addSeparator();
    view->addAction(tr("&Refresh"), m_session, &SourceSession::requestRefresh);
    view->addSeparator();
    auto *language = new LanguageMenu(view);
    view->addMenu(language);
    connect(language, &LanguageMenu::hint, this,
            [this](const QString &text) { statusBar()->showMessage(text); });

    const Core::CId windowId(Host::Ids::windowMenu);
    QMenu *window = makeContainerMenu(windowId, tr("&Window"));
    for (QDockWidget *dock : qAsConst(m_docks)) {
        window->addAction(dock->toggleViewAction());
    }
    window->addSeparator();
    m_menuService->addGroup(windowId, Core::CId(Host::Ids::windowsGroup));

    menuBar()->addMenu(tr("&Help"))->addAction(tr("&About"), this, &MainWindow::showAbout);

    auto *context = new QMenu(this);
    m_menuService->createContainer(Core::CId(Host::Ids::featureTreeContextMenu), context);
    new FeatureContextMenu(context, m_feature, m_visibilityLevel, this);
}

void MainWindow::showAbout()
{
    auto *box = new QMessageBox(QMessageBox::NoIcon, tr("About Tessera"),
                                tr("<h3>Tessera %1</h3><p>A feature browser for machine-vision "
                                   "cameras.</p>")
                                    .arg(QApplication::applicationVersion()),
                                QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace Viewer
