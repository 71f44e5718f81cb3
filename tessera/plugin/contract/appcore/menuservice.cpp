// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "menuservice.h"

namespace Plugin::AppCore {

IMenuService::IMenuService(QObject *parent)
    : IService(parent)
{
}

IMenuService::~IMenuService() = default;

IActionCommand *IMenuService::command(const Core::CId &id) const
{
    Q_UNUSED(id)
    return nullptr;
}

} // namespace Plugin::AppCore
