// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/actioncontainer.h"
#include "plugin/contract/core/id.h"

#include <QPointer>
#include <QVector>

class QAction;

namespace Host {

class ActionCommand;

/// Commands in groups, shown in a menu where the container has one. Groups stand in the order in
/// which they were added, below whatever the menu held before, with separators between those that
/// have commands.
class VANTREL_HOST_EXPORT ActionContainer final : public Plugin::AppCore::IActionContainer
{
public:
    /// `menu` may be null and stays the caller's.
    explicit ActionContainer(QMenu *menu);
    ~ActionContainer() override;

    /// Appends an empty group; one that is there already stays where it is.
    void addGroup(const Core::CId &group);

    QMenu *menu() const override;
    /// An unknown group is added at the end. A command of another menu service, a null one and one
    /// that stands anywhere in this container already change nothing.
    void addAction(Plugin::AppCore::IActionCommand *command, const Core::CId &group) override;

private:
    struct Group
    {
        Core::CId id;
        QVector<ActionCommand *> commands; // borrowed
        QAction *separator = nullptr; // by parent: the menu
    };

    int indexOf(const Core::CId &group);
    bool contains(const ActionCommand *command) const;
    QAction *firstActionBehind(int group) const;
    void separateGroups();

    QPointer<QMenu> m_menu; // borrowed
    QVector<Group> m_groups;
};

} // namespace Host
