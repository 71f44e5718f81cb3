// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "simulatedsource.h"

#include "simulatedcollection.h"

namespace Simulation {

SimulatedSource::SimulatedSource(const QString &id,
                                 QSharedPointer<const DeviceDescription> description)
    : m_id(id)
    , m_collection(QSharedPointer<SimulatedCollection>::create(
          std::move(description), SimulatedCollection::State::Unplugged))
{
}

SimulatedSource::~SimulatedSource()
{
    close();
}

QString SimulatedSource::id() const
{
    return m_id;
}

const DeviceInfo &SimulatedSource::info() const
{
    return m_collection->description().info;
}

QSharedPointer<SimulatedCollection> SimulatedSource::collection() const
{
    return m_collection;
}

void SimulatedSource::open()
{
    m_collection->revive();
}

void SimulatedSource::close()
{
    m_collection->unplug();
}

bool SimulatedSource::isOpen() const
{
    return m_collection->isLive();
}

} // namespace Simulation
