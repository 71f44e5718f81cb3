// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "serviceregistry.h"

#include "service.h"

namespace Core::Service {

IServiceRegistry::IServiceRegistry(QObject *parent)
    : QObject(parent)
{
}

IServiceRegistry::~IServiceRegistry() = default;

void IServiceRegistry::unregisterService(QSharedPointer<Core::Service::IService> service)
{
    Q_UNUSED(service)
}

} // namespace Core::Service
