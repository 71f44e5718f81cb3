// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QtGlobal>

class QMenu;

namespace Core {
class CId;
}

namespace Plugin::AppCore {

class IActionCommand;

/// A menu of the host, or another list of commands that has an id. Owned by the menu service.
class VANTREL_HOST_EXPORT IActionContainer
{
public:
    IActionContainer();
    virtual ~IActionContainer();
    Q_DISABLE_COPY_MOVE(IActionContainer)

    /// The menu, owned by the host; null for a container that is none.
    virtual QMenu *menu() const = 0;
    /// Appends `command` to the group named `group`. A command that is in the group already stays
    /// where it is.
    virtual void addAction(IActionCommand *command, const Core::CId &group) = 0;
};

} // namespace Plugin::AppCore
