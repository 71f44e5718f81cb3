// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/service.h"
#include "plugin/contract/core/serviceregistry.h"

#include <QReadWriteLock>

namespace Host {

/// The first service in `registry` that is a `T`, or null. `registry` may be null.
template<typename T>
QSharedPointer<T> findService(const QSharedPointer<Core::Service::IServiceRegistry> &registry)
{
    if (!registry) {
        return {};
    }
    const QReadLocker locker(registry->lock());
    const QList<QSharedPointer<Core::Service::IService>> services = registry->services();
    for (const QSharedPointer<Core::Service::IService> &service : services) {
        if (auto found = service.objectCast<T>()) {
            return found;
        }
    }
    return {};
}

} // namespace Host
