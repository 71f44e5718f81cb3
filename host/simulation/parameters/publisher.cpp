// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "publisher.h"

#include <QMetaObject>

namespace Simulation {

Publisher::Publisher(Sink sink)
    : m_sink(std::move(sink))
{
}

void Publisher::setPublication(Publication publication)
{
    m_publication = publication;
}

void Publisher::publish(int id, const Snapshot &snapshot)
{
    // What waits goes first, even if the switch was turned meanwhile.
    if (m_publication == Publication::Immediate && m_queue.isEmpty()) {
        m_sink(id, snapshot);
        return;
    }
    if (m_queue.isEmpty())
        QMetaObject::invokeMethod(this, "flush", Qt::QueuedConnection);
    m_queue.append({id, snapshot});
}

void Publisher::discard()
{
    m_queue.clear();
}

void Publisher::flush()
{
    const QVector<std::pair<int, Snapshot>> queue = std::exchange(m_queue, {});
    for (const auto &[id, snapshot] : queue)
        m_sink(id, snapshot);
}

} // namespace Simulation
