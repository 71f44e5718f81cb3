// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "serviceregistry.h"

#include <QReadWriteLock>

namespace Host {

using Core::Service::IService;

ServiceRegistry::ServiceRegistry(QObject *parent)
    : IServiceRegistry(parent)
{
}

ServiceRegistry::~ServiceRegistry()
{
    clear();
}

void ServiceRegistry::clear()
{
    QList<QSharedPointer<IService>> services;
    {
        const QWriteLocker locker(&m_lock);
        services.swap(m_services);
    }
    while (!services.isEmpty()) {
        services.removeLast();
    }
}

void ServiceRegistry::registerService(QSharedPointer<IService> service)
{
    const QWriteLocker locker(&m_lock);
    if (service && !m_services.contains(service)) {
        m_services.append(service);
    }
}

void ServiceRegistry::unregisterService(QSharedPointer<IService> service)
{
    const QWriteLocker locker(&m_lock);
    m_services.removeOne(service);
}

QList<QSharedPointer<IService>> ServiceRegistry::services() const
{
    return m_services;
}

QReadWriteLock *ServiceRegistry::lock() const
{
    return &m_lock;
}

} // namespace Host
