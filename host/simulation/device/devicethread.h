// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QThread>

#include <condition_variable>
#include <functional>
#include <mutex>

namespace Simulation {

/// The thread of one device: calls a function at a steady pace while the device has something to
/// do, and sleeps otherwise.
class DeviceThread final : public QThread
{
public:
    /// `tick` gets the milliseconds since its last call and tells whether it wants another one
    /// soon.
    explicit DeviceThread(std::function<bool(int)> tick);
    ~DeviceThread() override;

    /// Calls the function at once, even if the device had nothing to do.
    void wake();
    /// Ends the thread and waits for it.
    void finish();

protected:
    void run() override;

private:
    std::function<bool(int)> m_tick;
    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_isAwake = true;
    bool m_isFinished = false;
};

} // namespace Simulation
