// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "menuservice.h"

#include "actioncommand.h"
#include "actioncontainer.h"
#include "plugin/contract/core/logging.h"

#include <QMainWindow>

#include <algorithm>
#include <iterator>

namespace Host {

using Plugin::AppCore::IActionCommand;
using Plugin::AppCore::IActionContainer;

MenuService::MenuService(QMainWindow *window, QObject *parent)
    : IMenuService(parent)
    , m_window(window)
{
}

MenuService::~MenuService()
{
    QVector<QPointer<QAction>> leftOver;
    for (const auto &entry : m_commands) {
        const QVector<QAction *> actions = entry.second->actions();
        std::copy(actions.begin(), actions.end(), std::back_inserter(leftOver));
    }
    for (const QPointer<QAction> &action : qAsConst(leftOver)) {
        if (action && action->parent() == nullptr) {
            delete action;
        }
    }
}

ActionContainer *MenuService::createContainer(const Core::CId &id, QMenu *menu)
{
    auto &container = m_containers[id.toString()];
    if (!container) {
        container = std::make_unique<ActionContainer>(menu);
    }
    return container.get();
}

void MenuService::addGroup(const Core::CId &container, const Core::CId &group)
{
    if (ActionContainer *known = findContainer(container)) {
        known->addGroup(group);
    }
}

IActionCommand *MenuService::registerAction(QAction *action, const Core::CId &id,
                                            const Core::AppCoreComponents::CContext &context)
{
    Q_UNUSED(context) // the main window is the only context there is
    if (action == nullptr) {
        static const quint64 category = Core::Logging::getCatId("vantrel.viewer.menuService");
        Core::Logging::createLogEntry(
            Core::Logging::ELogLevel::Fault, category,
            QStringLiteral("No action given to register as \"%1\".").arg(id.toString()));
        return nullptr;
    }
    ActionCommand *command = commandFor(id);
    command->addAction(action);
    return command;
}

ActionCommand *MenuService::commandFor(const Core::CId &id)
{
    auto &command = m_commands[id.toString()];
    if (!command) {
        command = std::make_unique<ActionCommand>();
        command->proxy()->setObjectName(id.toString());
        if (m_window) {
            m_window->addAction(command->proxy());
        }
    }
    return command.get();
}

void MenuService::unregisterAction(QAction *action, const Core::CId &id)
{
    if (ActionCommand *known = findCommand(id)) {
        known->removeAction(action);
    }
}

IActionCommand *MenuService::command(const Core::CId &id) const
{
    return findCommand(id);
}

IActionContainer *MenuService::actionContainer(const Core::CId &id) const
{
    return findContainer(id);
}

ActionCommand *MenuService::findCommand(const Core::CId &id) const
{
    const auto found = m_commands.find(id.toString());
    return found != m_commands.end() ? found->second.get() : nullptr;
}

ActionContainer *MenuService::findContainer(const Core::CId &id) const
{
    const auto found = m_containers.find(id.toString());
    return found != m_containers.end() ? found->second.get() : nullptr;
}

} // namespace Host
