// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace Simulation {

/// The thread of one device: calls a function at a steady pace while the device has something to
/// do, and sleeps otherwise. A thread of the standard library, since thread sanitizers see when it
/// is joined.
class DeviceThread final
{
public:
    /// Starts at once. `tick` gets the milliseconds since its last call and tells whether it wants
    /// another one soon.
    explicit DeviceThread(std::function<bool(int)> tick);
    /// Ends the thread and waits for it.
    ~DeviceThread();
    Q_DISABLE_COPY_MOVE(DeviceThread)

    /// Calls the function at once, even if the device had nothing to do.
    void wake();

private:
    void run();

    std::function<bool(int)> m_tick;
    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_isAwake = true;
    bool m_isFinished = false;
    std::thread m_thread;
};

} // namespace Simulation
