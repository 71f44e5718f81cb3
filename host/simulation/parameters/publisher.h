// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/parameters/snapshots.h"

#include <QObject>
#include <QVector>

#include <functional>
#include <utility>

namespace Simulation {

/// When a snapshot reaches its receivers.
enum class Publication {
    Immediate, ///< before the call that made it returns
    Deferred, ///< later, through the event loop, as over a wire
};

/// Hands snapshots on, at once or through the event loop, always in the order they came.
class Publisher final : public QObject
{
    Q_OBJECT

public:
    using Sink = std::function<void(int id, const Snapshot &snapshot)>;

    explicit Publisher(Sink sink);

    void setPublication(Publication publication);
    void publish(int id, const Snapshot &snapshot);
    /// Forgets what has not been handed on.
    void discard();

private Q_SLOTS:
    void flush();

private:
    Sink m_sink;
    Publication m_publication = Publication::Immediate;
    QVector<std::pair<int, Snapshot>> m_queue;
};

} // namespace Simulation
