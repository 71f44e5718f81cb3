// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "windowservice.h"

namespace Plugin::AppCore {

IWindowService::IWindowService(QObject *parent)
    : IService(parent)
{
}

IWindowService::~IWindowService() = default;

void IWindowService::reservedPlace4()
{
}

void IWindowService::reservedPlace5()
{
}

} // namespace Plugin::AppCore
