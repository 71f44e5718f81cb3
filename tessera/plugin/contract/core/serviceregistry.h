// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>

class QReadWriteLock;

namespace Core::Service {

class IService;

/// The list of all services. Plug-ins get a weak reference to it and take a strong one for each
/// use; they look a service up by taking `lock()` for reading and casting each of `services()`.
class VANTREL_HOST_EXPORT IServiceRegistry : public QObject
{
    Q_OBJECT

public:
    explicit IServiceRegistry(QObject *parent = nullptr);
    ~IServiceRegistry() override;

    /// Adds a service; from now on every plug-in can find it.
    virtual void registerService(QSharedPointer<Core::Service::IService> service) = 0;
    /// Takes a service out again. Plug-ins do not call it.
    virtual void unregisterService(QSharedPointer<Core::Service::IService> service);
    /// All services, in the order of their registration.
    virtual QList<QSharedPointer<Core::Service::IService>> services() const = 0;
    /// The lock that guards the list; owned by the registry, not recursive.
    virtual QReadWriteLock *lock() const = 0;
};

} // namespace Core::Service

namespace Core::Plugin {
using Core::Service::IServiceRegistry;
} // namespace Core::Plugin
