// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "faults.h"

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/genericexception.h"

#include <QThread>

#include <stdexcept>

namespace Simulation {

namespace {

[[noreturn]] void throwFault(FaultKind kind, const QString &what)
{
    switch (kind) {
    case FaultKind::GenericException:
        break;
    case FaultKind::StdException:
        throw std::runtime_error(what.toStdString());
    case FaultKind::BaseException:
        throw Core::Exception::BaseException(what.toStdString());
    case FaultKind::Unknown:
        throw 42; // NOLINT(hicpp-exception-baseclass): a kind that nobody knows is the point.
    }
    throw GenICam::GenericException(what.toStdString(), __FILE__, __LINE__);
}

void throwIfFaulty(const QHash<QString, FaultKind> &faults, const QString &fullName,
                   const QString &what)
{
    const auto fault = faults.constFind(fullName);
    if (fault != faults.cend())
        throwFault(*fault, fullName % QStringLiteral(": ") % what);
}

} // namespace

void Faults::failReads(const QString &fullName, FaultKind kind)
{
    m_failingReads.insert(fullName, kind);
}

void Faults::failWrites(const QString &fullName, FaultKind kind)
{
    m_failingWrites.insert(fullName, kind);
}

void Faults::publishOutsideLimits(const QString &fullName, const QVariant &value)
{
    m_forcedValues.insert(fullName, value);
    if (m_listener)
        m_listener(fullName);
}

void Faults::setDelay(int milliseconds)
{
    m_delayMs = milliseconds;
}

void Faults::setNullObject(const QString &fullName, bool hasFilterTarget)
{
    m_nullObjects.insert(fullName, hasFilterTarget);
}

void Faults::clear(const QString &fullName)
{
    m_failingReads.remove(fullName);
    m_failingWrites.remove(fullName);
    m_nullObjects.remove(fullName);
    if (m_forcedValues.remove(fullName) > 0 && m_listener)
        m_listener(fullName);
}

void Faults::clearAll()
{
    m_failingReads.clear();
    m_failingWrites.clear();
    m_nullObjects.clear();
    m_delayMs = 0;
    const QStringList forced = m_forcedValues.keys();
    m_forcedValues.clear();
    for (const QString &fullName : forced) {
        if (m_listener)
            m_listener(fullName);
    }
}

void Faults::onForcedValueChanged(std::function<void(const QString &)> listener)
{
    m_listener = std::move(listener);
}

void Faults::wait() const
{
    if (m_delayMs > 0)
        QThread::msleep(static_cast<unsigned long>(m_delayMs));
}

void Faults::beforeRead(const QString &fullName) const
{
    wait();
    throwIfFaulty(m_failingReads, fullName, QStringLiteral("the read failed"));
}

void Faults::beforeWrite(const QString &fullName) const
{
    wait();
    throwIfFaulty(m_failingWrites, fullName, QStringLiteral("the device refuses the write"));
}

std::optional<QVariant> Faults::forcedValue(const QString &fullName) const
{
    const auto found = m_forcedValues.constFind(fullName);
    return found == m_forcedValues.cend() ? std::nullopt : std::optional<QVariant>(*found);
}

void Faults::forgetForcedValue(const QString &fullName)
{
    m_forcedValues.remove(fullName);
}

std::optional<bool> Faults::nullObject(const QString &fullName) const
{
    const auto found = m_nullObjects.constFind(fullName);
    return found == m_nullObjects.cend() ? std::nullopt : std::optional<bool>(*found);
}

} // namespace Simulation
