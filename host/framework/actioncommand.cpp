// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "actioncommand.h"

#include <algorithm>

namespace Host {

ActionCommand::ActionCommand()
{
    connect(&m_proxy, &QAction::triggered, this, &ActionCommand::forward);
    followActions();
}

ActionCommand::~ActionCommand() = default;

QAction *ActionCommand::proxy()
{
    return &m_proxy;
}

QVector<QAction *> ActionCommand::actions() const
{
    return m_actions;
}

void ActionCommand::addAction(QAction *action)
{
    if (m_actions.contains(action)) {
        return;
    }
    m_actions.append(action);
    connect(action, &QAction::changed, this, &ActionCommand::followActions);
    connect(action, &QObject::destroyed, this, [this, action] { drop(action); });
    if (m_actions.size() == 1) {
        takeOver(*action);
    }
    followActions();
}

void ActionCommand::removeAction(QAction *action)
{
    if (m_actions.contains(action)) {
        action->disconnect(this);
        drop(action);
    }
}

// `action` may be half destroyed: only its address counts.
void ActionCommand::drop(QAction *action)
{
    m_actions.removeOne(action);
    followActions();
}

void ActionCommand::setAttribute(int attribute)
{
    constexpr int textChanged = 2;
    if (attribute == textChanged && !m_actions.isEmpty()) {
        m_proxy.setText(m_actions.constFirst()->text());
    }
}

QAction *ActionCommand::target() const
{
    const auto enabled = std::find_if(m_actions.begin(), m_actions.end(),
                                      [](const QAction *action) { return action->isEnabled(); });
    return enabled != m_actions.end() ? *enabled : nullptr;
}

void ActionCommand::takeOver(const QAction &action)
{
    m_proxy.setText(action.text());
    m_proxy.setIcon(action.icon());
    m_proxy.setShortcuts(action.shortcuts());
    m_proxy.setShortcutContext(action.shortcutContext());
    m_proxy.setCheckable(action.isCheckable());
}

void ActionCommand::forward()
{
    if (QAction *action = target()) {
        action->trigger();
    }
    // A checkable proxy has toggled by itself; the action's answer counts.
    followActions();
}

void ActionCommand::followActions()
{
    const QAction *action = target();
    m_proxy.setEnabled(action != nullptr);
    m_proxy.setVisible(std::any_of(m_actions.cbegin(), m_actions.cend(),
                                   [](const QAction *each) { return each->isVisible(); }));
    if (action == nullptr && !m_actions.isEmpty()) {
        action = m_actions.constFirst();
    }
    m_proxy.setChecked(action != nullptr && action->isChecked());
}

} // namespace Host
