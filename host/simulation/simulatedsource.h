// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/devicedescription.h"

#include <QSharedPointer>
#include <QString>

namespace Simulation {

class SimulatedCollection;

/// One simulated device that can be opened and closed. Its collection is the same for its whole
/// life: opening it again revives the objects that were handed out before.
class SimulatedSource final
{
public:
    SimulatedSource(const QString &id, QSharedPointer<const DeviceDescription> description);
    ~SimulatedSource();
    Q_DISABLE_COPY_MOVE(SimulatedSource)

    /// The word that names it on a command line, such as "simulated:gige".
    QString id() const;
    /// What its record shows.
    const DeviceInfo &info() const;
    /// Its parameters, null ones while it is closed.
    QSharedPointer<SimulatedCollection> collection() const;

    void open();
    void close();
    bool isOpen() const;

private:
    QString m_id;
    QSharedPointer<SimulatedCollection> m_collection;
};

} // namespace Simulation
