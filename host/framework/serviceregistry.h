// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/service.h"
#include "plugin/contract/core/serviceregistry.h"

#include <QReadWriteLock>

namespace Host {

/// The list of all services of the process. `registerService`, `unregisterService` and `clear` take
/// the lock for writing; `services` takes none, as its callers hold the lock for reading.
class VANTREL_HOST_EXPORT ServiceRegistry final : public Core::Service::IServiceRegistry
{
    Q_OBJECT

public:
    explicit ServiceRegistry(QObject *parent = nullptr);
    ~ServiceRegistry() override;

    /// Lets go of all services. Those that nobody else holds are deleted, the newest first, with
    /// the lock free.
    void clear();

    /// A null service and one that is registered already change nothing.
    void registerService(QSharedPointer<Core::Service::IService> service) override;
    void unregisterService(QSharedPointer<Core::Service::IService> service) override;
    QList<QSharedPointer<Core::Service::IService>> services() const override;
    QReadWriteLock *lock() const override;

private:
    mutable QReadWriteLock m_lock; // guards m_services
    QList<QSharedPointer<Core::Service::IService>> m_services;
};

} // namespace Host
