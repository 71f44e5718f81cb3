// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/device/simulateddevice.h"
#include "host/simulation/parameters/accesscounters.h"
#include "host/simulation/parameters/faults.h"
#include "host/simulation/parameters/nodeoverrides.h"
#include "host/simulation/parameters/publisher.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>
#include <vector>

namespace Simulation {

class ParameterCore;

/// What all parameters of a collection share: the device, the faults and counters on the way to
/// it, and the rules of when a snapshot is made and published. Used on the GUI thread only.
class ParameterLibrary final : public QObject
{
    Q_OBJECT

public:
    explicit ParameterLibrary(QSharedPointer<const DeviceDescription> description);
    ~ParameterLibrary() override;

    const DeviceDescription &description() const;
    SimulatedDevice &device();
    Faults &faults();
    AccessCounters &counters();
    Publisher &publisher();

    /// The device is connected. While it is not, every access throws and nothing is published.
    bool isLive() const;
    void setLive(bool live);
    /// Throws `GenICam::GenericException` while the device is not connected.
    void requireLive(int id) const;

    /// A parameter object enters or leaves; the library borrows it in between.
    void enter(ParameterCore *core);
    void leave(const ParameterCore *core);

    NodeOverrides overrides(int id) const;
    void setOverride(int id, const QString &key, const QString &value);

    /// The feature as the device has it now. Throws what the device or a fault throws.
    Snapshot read(int id);
    /// Reads and publishes: with `force` always, without only what changed.
    void refresh(int id, bool force);
    /// Drops what is known of a parameter; reads and publishes it where somebody listens.
    void invalidate(int id);
    /// Reads those again that a device wants polled, and publishes what changed.
    void poll();
    /// Reads all again and publishes what changed.
    void update();

    void write(int id, const Value &value, bool verify);
    void execute(int id);
    /// Publishes the parameter as it is, after a write that came to nothing.
    void restore(int id);

Q_SIGNALS:
    void treeAttached(int tree);

private Q_SLOTS:
    void takeFromDevice();

private:
    ParameterCore *core(int id) const;
    QVector<int> known() const;
    QVector<int> withDependants(const QVector<int> &ids) const;
    QVector<int> companionsFirst(const QVector<int> &ids) const;
    bool renew(int id, bool always);
    void renewAndPublish(const QVector<int> &ids, const QVector<int> &always);
    void publish(const QVector<int> &ids);
    void requireOverride(int id) const;
    void submit(int id, const std::function<QVector<int>()> &operation);
    void deliver(int id, const Snapshot &snapshot);

    SimulatedDevice m_device;
    Faults m_faults;
    AccessCounters m_counters;
    Publisher m_publisher;
    std::vector<ParameterCore *> m_cores; // borrowed, by number
    QHash<int, NodeOverrides> m_overrides;
    QSet<int> m_unpublished; ///< renewed, but not handed to the publisher yet
    bool m_isLive = false;
};

} // namespace Simulation
