// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/actioncommand.h"

#include <QAction>
#include <QVector>

namespace Host {

/// One command: the actions registered under one id and the one action, the proxy, that stands for
/// them in menus and as shortcut. Triggering the proxy triggers the first registered action that is
/// enabled.
///
/// The proxy takes text, icon, shortcut and checkability from the first action when that is added.
/// It is enabled and visible while any of the actions is, and checked as the action that it would
/// trigger; without actions it is hidden.
class VANTREL_HOST_EXPORT ActionCommand final : public QObject,
                                                public Plugin::AppCore::IActionCommand
{
    Q_OBJECT

public:
    ActionCommand();
    ~ActionCommand() override;

    /// The one that menus show; owned by the command.
    QAction *proxy();
    /// The registered actions, in the order of registration; none of them is owned.
    QVector<QAction *> actions() const;

    /// Adds an action; one that is there already stays where it is.
    void addAction(QAction *action);
    /// Takes an action out; an unknown one changes nothing.
    void removeAction(QAction *action);

    /// 2: the proxy takes over the present text of the first action. Every other number changes
    /// nothing.
    void setAttribute(int attribute) override;

private:
    QAction *target() const;
    void takeOver(const QAction &action);
    void forward();
    void followActions();
    void drop(QAction *action);

    QVector<QAction *> m_actions; // borrowed; leave when they are destroyed
    QAction m_proxy;
};

} // namespace Host
