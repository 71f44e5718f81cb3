// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/windowservice.h"

#include <QHash>
#include <QPointer>
#include <QSharedPointer>
#include <QVector>

#include <optional>

class QAction;
class QMainWindow;

namespace Plugin::AppCore {
class IMenuService;
}

namespace Host {

class DockWidget;

/// Docks of one main window. Each dock has the text of its id as object name, so that the window's
/// `saveState` covers it.
class VANTREL_HOST_EXPORT WindowService final : public Plugin::AppCore::IWindowService
{
    Q_OBJECT

public:
    /// `area` of `addDockWidget`. Other numbers mean `Features`.
    enum EDockArea {
        Left = 0,
        Bottom = 1,
        Top = 2,
        Features = 3, ///< on the right, all tabbed together, with the first one on top
    };

    /// `window` is borrowed and may go before the service does. `menuService` takes the entries of
    /// the Window menu; it may be null.
    WindowService(QMainWindow *window,
                  const QSharedPointer<Plugin::AppCore::IMenuService> &menuService,
                  QObject *parent = nullptr);
    ~WindowService() override;

    bool isDockWidgetClosed(const Core::CId &id) const override;
    /// A dock that is opened comes to the front of its tabs.
    void setDockWidgetVisible(const Core::CId &id, bool visible) override;
    void setDockWidgetTitle(const Core::CId &id, const QString &title) override;
    /// A null widget and an id that is taken are reported in the log and change nothing.
    void addDockWidget(const Core::CId &id, QWidget *widget, int area, bool visible,
                       bool flag) override;
    void removeDockWidget(const Core::CId &id) override;

private:
    // What was asked for an id before its dock came.
    struct Wish
    {
        std::optional<bool> visible;
        std::optional<QString> title;
    };

    DockWidget *dock(const Core::CId &id) const;
    void place(DockWidget *dock, int area);
    void addMenuEntry(const Core::CId &id, DockWidget *dock);
    void removeMenuEntry(const Core::CId &id);

    QPointer<QMainWindow> m_window; // borrowed
    QSharedPointer<Plugin::AppCore::IMenuService> m_menuService;
    QHash<QString, QPointer<DockWidget>> m_docks; // by the text of the id; by parent: the window
    QHash<QString, QPointer<QAction>> m_menuEntries; // likewise; by parent: the dock
    QHash<QString, Wish> m_wishes; // likewise
    QVector<DockWidget *> m_featureDocks; // by parent: the window
};

} // namespace Host
