// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parametercollection.h"

#include "host/simulation/parameters/accesscounters.h"
#include "host/simulation/parameters/faults.h"
#include "host/simulation/parameters/publisher.h"

#include <QHash>
#include <QVariant>

namespace Simulation {

class DeviceDescription;
class ParameterLibrary;

/// The parameters of a simulated device. Parameter objects are made when they are asked for and
/// live as long as the collection. Used on the GUI thread only; the device has a thread of its own.
class SimulatedCollection final : public ParameterCollection::IParameterCollection
{
    Q_OBJECT

public:
    enum class State { Live, Unplugged };

    /// A collection over the device that `description` describes, which is switched on at once
    /// unless `state` says otherwise.
    explicit SimulatedCollection(QSharedPointer<const DeviceDescription> description,
                                 State state = State::Live);
    ~SimulatedCollection() override;

    QSharedPointer<ParameterCollection::IParameter> parameter(const QString &fullName) override;
    bool contains(const QString &fullName) const override;
    QStringList attachedParameterPaths() const override;
    QStringList children(const QString &parentFullName, int reserved, bool flag) const override;
    void endBatchUpdate() override;
    void poll(int elapsedMilliseconds) override;

    const DeviceDescription &description() const;

    /// When snapshots reach their receivers; at once if nothing is said.
    void setPublication(Publication publication);
    Faults &faults();
    AccessCounters &counters();

    /// The value in the camera's own memory: an integer, a number, true or false, the symbolic name
    /// of an entry, the bytes of a string. Invalid for an unknown name. Counts as no read.
    QVariant deviceValue(const QString &fullName) const;
    /// A change on the camera's side, as by its own doing: limits and locks are not asked. Throws
    /// `GenICam::InvalidArgumentException` for a name or an entry that is unknown.
    void changeOnDevice(const QString &fullName, const QVariant &value);

    bool isLive() const;
    /// Pulls the plug: all parameters are null, all access throws, nothing is published.
    void unplug();
    /// Plugs it in again: the same objects live on.
    void revive();

private:
    int find(const QString &fullName) const;
    QSharedPointer<ParameterCollection::IParameter> makeObject(const QString &fullName) const;
    std::optional<bool> nullObject(const QString &fullName) const;
    void onTreeAttached(int tree);

    QSharedPointer<ParameterLibrary> m_library;
    QHash<QString, QSharedPointer<ParameterCollection::IParameter>> m_parameters;
    QStringList m_attachedPaths;
};

} // namespace Simulation
