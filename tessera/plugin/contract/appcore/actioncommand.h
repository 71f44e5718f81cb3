// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QtGlobal>

namespace Plugin::AppCore {

/// What the host made of the actions registered under one id: one entry in its menus. Owned by the
/// menu service.
class VANTREL_HOST_EXPORT IActionCommand
{
public:
    IActionCommand();
    virtual ~IActionCommand();
    Q_DISABLE_COPY_MOVE(IActionCommand)

    /// With 2 the entry takes over the present text of the registered action.
    virtual void setAttribute(int attribute) = 0;
};

} // namespace Plugin::AppCore
