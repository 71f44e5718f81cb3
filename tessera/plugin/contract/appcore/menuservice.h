// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/context.h"
#include "plugin/contract/core/service.h"

class QAction;

namespace Plugin::AppCore {

class IActionCommand;
class IActionContainer;

/// The host's registry of actions and menus.
class VANTREL_HOST_EXPORT IMenuService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IMenuService(QObject *parent);
    ~IMenuService() override;

    /// Gives `action` a host-wide id. Several actions under one id share one command, which
    /// triggers the first of them that is enabled. The action stays the caller's while it is
    /// registered; what is left without a parent when the service ends is deleted by it. The
    /// command belongs to the service.
    virtual IActionCommand *registerAction(QAction *action, const Core::CId &id,
                                           const Core::AppCoreComponents::CContext &context) = 0;
    /// Undoes `registerAction`. A null action is legal and does nothing.
    virtual void unregisterAction(QAction *action, const Core::CId &id) = 0;
    /// The command under `id`, or null. Plug-ins do not call it.
    virtual IActionCommand *command(const Core::CId &id) const;
    /// The container with this id, or null.
    virtual IActionContainer *actionContainer(const Core::CId &id) const = 0;
};

} // namespace Plugin::AppCore
