// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/menuservice.h"

#include <QPointer>

#include <map>
#include <memory>

class QMainWindow;
class QMenu;

namespace Host {

class ActionCommand;
class ActionContainer;

/// Commands and menus of one main window. Every proxy action belongs to the window too, so that its
/// shortcut works without a menu. When the service ends it deletes the actions that are still
/// registered and have no parent.
class VANTREL_HOST_EXPORT MenuService final : public Plugin::AppCore::IMenuService
{
    Q_OBJECT

public:
    /// `window` is borrowed and may go before the service does.
    explicit MenuService(QMainWindow *window, QObject *parent = nullptr);
    ~MenuService() override;

    /// Makes the container `id` over `menu`, which may be null and stays the caller's. An id that
    /// is there already keeps its container. The result is the service's.
    ActionContainer *createContainer(const Core::CId &id, QMenu *menu);
    /// Appends a group to a container; nothing happens for an unknown container.
    void addGroup(const Core::CId &container, const Core::CId &group);

    /// A null action is reported in the log and gives null.
    Plugin::AppCore::IActionCommand *registerAction(
        QAction *action, const Core::CId &id,
        const Core::AppCoreComponents::CContext &context) override;
    /// The command stays, hidden while it has no action.
    void unregisterAction(QAction *action, const Core::CId &id) override;
    Plugin::AppCore::IActionCommand *command(const Core::CId &id) const override;
    Plugin::AppCore::IActionContainer *actionContainer(const Core::CId &id) const override;

private:
    ActionCommand *findCommand(const Core::CId &id) const;
    ActionContainer *findContainer(const Core::CId &id) const;
    ActionCommand *commandFor(const Core::CId &id);

    QPointer<QMainWindow> m_window; // borrowed
    std::map<QString, std::unique_ptr<ActionCommand>> m_commands; // by the text of the id
    std::map<QString, std::unique_ptr<ActionContainer>> m_containers; // by the text of the id
};

} // namespace Host
