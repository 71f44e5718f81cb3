// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/service.h"
#include "plugin/contract/core/serviceregistry.h"

#include <QReadLocker>
#include <QWeakPointer>

namespace Plugin::Tessera {

/// The first registered service that is a `Service`; null when there is none or the registry is
/// gone. Takes the registry's lock for reading.
template<typename Service>
QSharedPointer<Service> findService(const QWeakPointer<Core::Service::IServiceRegistry> &registry)
{
    const QSharedPointer<Core::Service::IServiceRegistry> strong = registry.toStrongRef();
    if (!strong) {
        return {};
    }
    const QReadLocker locker(strong->lock());
    const QList<QSharedPointer<Core::Service::IService>> services = strong->services();
    for (const QSharedPointer<Core::Service::IService> &service : services) {
        if (QSharedPointer<Service> found = service.objectCast<Service>()) {
            return found;
        }
    }
    return {};
}

} // namespace Plugin::Tessera
