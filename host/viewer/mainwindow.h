// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMainWindow>
#include <QSharedPointer>

namespace Core {
class CId;
}
namespace Host {
class MenuService;
class PluginLoader;
class WindowService;
} // namespace Host

namespace Viewer {

class CurrentFeature;
class DevicesView;
class SourceSession;
class VisibilityLevel;

/// The viewer's one window: menus, the docks Devices, Documentation and Log, and the place for the
/// docks of plug-ins. Its layout is kept between runs.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// `session` and `feature` are borrowed and outlive the window.
    MainWindow(SourceSession *session, CurrentFeature *feature);
    ~MainWindow() override;

    QSharedPointer<Host::MenuService> menuService() const;
    QSharedPointer<Host::WindowService> windowService() const;
    VisibilityLevel *visibilityLevel() const;

    /// Asked before the window closes; `loader` is borrowed, null: nobody is asked.
    void setLoader(Host::PluginLoader *loader);

    /// Brings back the layout of the last run, once the docks of the plug-ins are there.
    void restoreLayout();
    void saveLayout() const;

protected:
    bool focusNextPrevChild(bool next) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeMenus();
    void makeDocks();
    void arrangeDocks();
    QMenu *makeContainerMenu(const Core::CId &id, const QString &title);
    void showAbout();

    SourceSession *m_session; // borrowed
    CurrentFeature *m_feature; // borrowed
    Host::PluginLoader *m_loader = nullptr; // borrowed
    QSharedPointer<Host::MenuService> m_menuService;
    QSharedPointer<Host::WindowService> m_windowService;
    VisibilityLevel *m_visibilityLevel; // by parent
    DevicesView *m_devices = nullptr; // by parent
    QList<QDockWidget *> m_docks; // by parent: Devices, Documentation, Log
    QByteArray m_shownState; // restored once more when the window is shown
};

} // namespace Viewer
