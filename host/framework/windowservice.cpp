// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "windowservice.h"

#include "dockwidget.h"
#include "hostids.h"
#include "plugin/contract/appcore/actioncommand.h"
#include "plugin/contract/appcore/actioncontainer.h"
#include "plugin/contract/appcore/menuservice.h"
#include "plugin/contract/core/logging.h"

#include <QAction>
#include <QMainWindow>

namespace Host {

using Core::CId;
using Core::AppCoreComponents::CContext;
using Plugin::AppCore::IActionCommand;

namespace {

constexpr const char *menuEntrySuffix = "windowEntry";

void logRefusal(const CId &id, const QString &reason)
{
    static const quint64 category = Core::Logging::getCatId("vantrel.viewer.windowService");
    Core::Logging::createLogEntry(
        Core::Logging::ELogLevel::Fault, category,
        QStringLiteral("Cannot add the dock \"%1\": %2").arg(id.toString(), reason));
}

Qt::DockWidgetArea sideOf(int area)
{
    switch (area) {
    case WindowService::Left:
        return Qt::LeftDockWidgetArea;
    case WindowService::Bottom:
        return Qt::BottomDockWidgetArea;
    case WindowService::Top:
        return Qt::TopDockWidgetArea;
    default:
        return Qt::RightDockWidgetArea;
    }
}

} // namespace

WindowService::WindowService(QMainWindow *window,
                             const QSharedPointer<Plugin::AppCore::IMenuService> &menuService,
                             QObject *parent)
    : IWindowService(parent)
    , m_window(window)
    , m_menuService(menuService)
{
}

WindowService::~WindowService() = default;

DockWidget *WindowService::dock(const CId &id) const
{
    return m_docks.value(id.toString());
}

bool WindowService::isDockWidgetClosed(const CId &id) const
{
    const DockWidget *known = dock(id);
    return known == nullptr || known->isClosed();
}

void WindowService::setDockWidgetVisible(const CId &id, bool visible)
{
    DockWidget *known = dock(id);
    if (known == nullptr) {
        m_wishes[id.toString()].visible = visible;
        return;
    }
    known->setVisible(visible);
    if (visible) {
        known->raise();
    }
}

void WindowService::setDockWidgetTitle(const CId &id, const QString &title)
{
    DockWidget *known = dock(id);
    if (known == nullptr) {
        m_wishes[id.toString()].title = title;
        return;
    }
    known->setWindowTitle(title);
}

void WindowService::addDockWidget(const CId &id, QWidget *widget, int area, bool visible, bool flag)
{
    Q_UNUSED(flag)
    if (widget == nullptr || m_window.isNull()) {
        logRefusal(id, QStringLiteral("there is no widget or no window"));
        return;
    }
    if (dock(id) != nullptr) {
        logRefusal(id, QStringLiteral("a dock with this id is there already"));
        return;
    }
    const Wish wish = m_wishes.take(id.toString());
    auto *added = new DockWidget(m_window);
    added->setObjectName(id.toString());
    added->setWindowTitle(wish.title.value_or(widget->windowTitle()));
    added->setWidget(widget);
    m_docks.insert(id.toString(), added);
    if (visible) {
        addMenuEntry(id, added);
    }
    // Hidden by itself a dock stays so; otherwise the window would open whatever joins it.
    added->hide();
    place(added, area);
    if (wish.visible.value_or(visible)) {
        added->show();
    }
}

void WindowService::place(DockWidget *dock, int area)
{
    m_window->addDockWidget(sideOf(area), dock);
    if (sideOf(area) != sideOf(Features)) {
        return;
    }
    if (!m_featureDocks.isEmpty()) {
        m_window->tabifyDockWidget(m_featureDocks.constFirst(), dock);
        m_featureDocks.constFirst()->raise();
    }
    m_featureDocks.append(dock);
}

void WindowService::addMenuEntry(const CId &id, DockWidget *dock)
{
    if (!m_menuService) {
        return;
    }
    auto *entry = new QAction(dock->windowTitle(), dock);
    entry->setCheckable(true);
    entry->setChecked(!dock->isClosed());
    IActionCommand *command = m_menuService->registerAction(entry, id.withSuffix(menuEntrySuffix),
                                                            CContext(CId(Ids::globalContext)));
    connect(entry, &QAction::triggered, this,
            [this, id](bool checked) { setDockWidgetVisible(id, checked); });
    connect(dock, &DockWidget::closedChanged, entry,
            [entry](bool closed) { entry->setChecked(!closed); });
    connect(dock, &QWidget::windowTitleChanged, entry, [entry, command](const QString &title) {
        entry->setText(title);
        command->setAttribute(2);
    });
    if (auto *menu = m_menuService->actionContainer(CId(Ids::windowMenu))) {
        menu->addAction(command, CId(Ids::windowsGroup));
    }
    m_menuEntries.insert(id.toString(), entry);
}

void WindowService::removeMenuEntry(const CId &id)
{
    const QPointer<QAction> entry = m_menuEntries.take(id.toString());
    if (entry && m_menuService) {
        m_menuService->unregisterAction(entry, id.withSuffix(menuEntrySuffix));
    }
}

void WindowService::removeDockWidget(const CId &id)
{
    m_wishes.remove(id.toString());
    DockWidget *known = dock(id);
    if (known == nullptr) {
        return;
    }
    removeMenuEntry(id);
    known->release();
    m_docks.remove(id.toString());
    m_featureDocks.removeOne(known);
    if (m_window) {
        m_window->removeDockWidget(known);
    }
    delete known;
}

} // namespace Host
