// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/device/devicestate.h"

#include <functional>
#include <memory>
#include <mutex>

namespace Simulation {

class Behaviour;
class DeviceThread;

/// Everything that one access to a feature brings back from the device.
struct Reading
{
    AccessMode access = AccessMode::NotImplemented;
    Value value;
    Limits limits;
    QVector<int> entries; ///< of an enumeration: those that can be selected
    bool isDone = true; ///< of a command: it does not run
};

/// A device at work: its memory behind one lock, and a thread on which it changes by itself. All
/// functions may be called from any thread.
class SimulatedDevice final
{
public:
    /// `announce` is called on the device's thread when something is to be taken from it; not
    /// again until it has been taken.
    SimulatedDevice(QSharedPointer<const DeviceDescription> description,
                    std::function<void()> announce);
    ~SimulatedDevice();
    Q_DISABLE_COPY_MOVE(SimulatedDevice)

    const DeviceDescription &description() const;

    /// Switches the device on: its thread runs, time goes on, trees attach.
    void start();
    /// Switches it off and waits for its thread. The memory stays as it is.
    void stop();

    Reading read(int id) const;
    Value value(int id) const;
    /// Writes as a program does. With `verify` a value outside its limits or steps is refused with
    /// `GenICam::InvalidArgumentException`, without it is pulled in. A feature that is not writable
    /// refuses with `GenICam::GenericException`. Returns the numbers of all that changed.
    QVector<int> write(int id, const Value &value, bool verify);
    /// Starts a command; the thread ends it. Returns the numbers of all that changed.
    QVector<int> execute(int id);
    /// A change on the camera's side: taken as it is and announced from the device's thread.
    void change(int id, const Value &value);

    /// Numbers of the features that changed on the camera's side since the last call.
    QVector<int> takeChanges();
    /// Numbers of the trees that became available since the last call.
    QVector<int> takeAttachedTrees();

private:
    void advance(int elapsedMs);
    void advanceCommands(int elapsedMs);
    void finishCommand(int id);
    void attachTrees(int elapsedMs);
    void collectChanges();
    bool isBusy() const;
    void verifyWrite(int id, const Value &value) const;

    QSharedPointer<const DeviceDescription> m_description;
    std::function<void()> m_announce;
    mutable std::mutex m_mutex; ///< guards all below but the thread
    DeviceState m_state;
    std::vector<std::unique_ptr<Behaviour>> m_behaviours;
    QHash<int, int> m_commands; ///< milliseconds left of those that run
    QVector<int> m_changes;
    QVector<int> m_attachedTrees;
    std::vector<bool> m_isAttached;
    int m_upTimeMs = 0;
    bool m_isAnnounced = false;
    std::unique_ptr<DeviceThread> m_thread;
};

} // namespace Simulation
