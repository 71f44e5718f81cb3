// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "actioncontainer.h"

#include "actioncommand.h"

#include <QMenu>

#include <algorithm>

namespace Host {

using Plugin::AppCore::IActionCommand;

ActionContainer::ActionContainer(QMenu *menu)
    : m_menu(menu)
{
}

ActionContainer::~ActionContainer() = default;

QMenu *ActionContainer::menu() const
{
    return m_menu;
}

void ActionContainer::addGroup(const Core::CId &group)
{
    indexOf(group);
}

void ActionContainer::addAction(IActionCommand *command, const Core::CId &group)
{
    auto *added = dynamic_cast<ActionCommand *>(command);
    if (added == nullptr || contains(added)) {
        return;
    }
    const int index = indexOf(group);
    if (m_menu) {
        m_menu->insertAction(firstActionBehind(index), added->proxy());
    }
    m_groups[index].commands.append(added);
    separateGroups();
}

int ActionContainer::indexOf(const Core::CId &group)
{
    const auto found = std::find_if(m_groups.cbegin(), m_groups.cend(),
                                    [&group](const Group &each) { return each.id == group; });
    if (found != m_groups.cend()) {
        return static_cast<int>(std::distance(m_groups.cbegin(), found));
    }
    m_groups.append({group, {}, nullptr});
    return m_groups.size() - 1;
}

bool ActionContainer::contains(const ActionCommand *command) const
{
    return std::any_of(m_groups.begin(), m_groups.end(), [command](const Group &group) {
        return std::find(group.commands.begin(), group.commands.end(), command)
            != group.commands.end();
    });
}

// Null, that is the end of the menu, when no later group has commands.
QAction *ActionContainer::firstActionBehind(int group) const
{
    const auto next = std::find_if(m_groups.begin() + group + 1, m_groups.end(),
                                   [](const Group &each) { return !each.commands.isEmpty(); });
    if (next == m_groups.end()) {
        return nullptr;
    }
    return next->separator != nullptr ? next->separator : next->commands.constFirst()->proxy();
}

void ActionContainer::separateGroups()
{
    bool first = true;
    for (Group &group : m_groups) {
        if (group.commands.isEmpty()) {
            continue;
        }
        if (!first && group.separator == nullptr && m_menu) {
            group.separator = m_menu->insertSeparator(group.commands.constFirst()->proxy());
        }
        first = false;
    }
}

} // namespace Host
