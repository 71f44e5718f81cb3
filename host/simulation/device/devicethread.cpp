// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "devicethread.h"

#include <chrono>

namespace Simulation {

namespace {

constexpr std::chrono::milliseconds pace {50};

} // namespace

DeviceThread::DeviceThread(std::function<bool(int)> tick)
    : m_tick(std::move(tick))
    , m_thread([this] { run(); })
{
}

DeviceThread::~DeviceThread()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isFinished = true;
    }
    m_condition.notify_one();
    m_thread.join();
}

void DeviceThread::wake()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isAwake = true;
    }
    m_condition.notify_one();
}

void DeviceThread::run()
{
    using Clock = std::chrono::steady_clock;
    Clock::time_point last = Clock::now();
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isFinished) {
        m_isAwake = false;
        // The device takes a lock of its own; holding both could stand still with `wake`.
        lock.unlock();
        const Clock::time_point now = Clock::now();
        const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(now - last);
        // Not `now`: the part below a millisecond counts for the next round.
        last += elapsed;
        const bool isBusy = m_tick(static_cast<int>(elapsed.count()));
        lock.lock();
        const auto isCalled = [this] { return m_isAwake || m_isFinished; };
        if (isBusy)
            m_condition.wait_for(lock, pace, isCalled);
        else
            m_condition.wait(lock, isCalled);
    }
}

} // namespace Simulation
