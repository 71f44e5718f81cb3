// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>

namespace Simulation {

/// What a faulty access throws.
enum class FaultKind {
    GenericException, ///< `GenICam::GenericException`
    StdException, ///< `std::runtime_error`
    BaseException, ///< `Core::Exception::BaseException`
    Unknown, ///< an `int`
};

/// Switches that make a collection misbehave, by the full name of a parameter. Used on the GUI
/// thread; everything is off at first.
class Faults final
{
public:
    /// Every read of the parameter from the device throws.
    void failReads(const QString &fullName, FaultKind kind);
    /// Every write and every start of a command throws, and the device keeps what it had.
    void failWrites(const QString &fullName, FaultKind kind);
    /// Publishes `value` in the parameter's snapshots, writable, whatever its limits say, until
    /// the next write to the parameter.
    void publishOutsideLimits(const QString &fullName, const QVariant &value);
    /// Every access to the device takes that much longer.
    void setDelay(int milliseconds);
    /// `parameter` gives an object that stands for no node, whether the name is known or not.
    /// `hasFilterTarget` is what the object says of itself. Not for objects given out before.
    void setNullObject(const QString &fullName, bool hasFilterTarget);
    /// Ends all faults of one parameter.
    void clear(const QString &fullName);
    /// Ends all faults.
    void clearAll();

    /// Called when a forced value is to be shown or is taken back.
    void onForcedValueChanged(std::function<void(const QString &)> listener);

    /// For the library: throw, wait or do nothing, as the switches say.
    void beforeRead(const QString &fullName) const;
    void beforeWrite(const QString &fullName) const;
    std::optional<QVariant> forcedValue(const QString &fullName) const;
    void forgetForcedValue(const QString &fullName);
    /// What a null object of that name says of its filter target; nothing where there is none.
    std::optional<bool> nullObject(const QString &fullName) const;

private:
    void wait() const;

    QHash<QString, FaultKind> m_failingReads;
    QHash<QString, FaultKind> m_failingWrites;
    QHash<QString, QVariant> m_forcedValues;
    QHash<QString, bool> m_nullObjects;
    std::function<void(const QString &)> m_listener;
    int m_delayMs = 0;
};

} // namespace Simulation
