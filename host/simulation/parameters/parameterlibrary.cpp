// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parameterlibrary.h"

#include "parametercore.h"
#include "variantvalue.h"

#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/parametercollection/parameterdata.h"

#include <QMetaObject>

#include <algorithm>

namespace Simulation {

ParameterLibrary::ParameterLibrary(QSharedPointer<const DeviceDescription> description)
    : m_device(std::move(description),
               [this] { // By name: such an event is made and read within Qt, whatever the thread.
                   QMetaObject::invokeMethod(this, "takeFromDevice", Qt::QueuedConnection);
               })
    , m_publisher([this](int id, const Snapshot &snapshot) { deliver(id, snapshot); })
    , m_cores(static_cast<std::size_t>(m_device.description().size()), nullptr)
{
    m_faults.onForcedValueChanged([this](const QString &fullName) {
        const int id = this->description().find(fullName);
        if (id >= 0)
            restore(id);
    });
}

ParameterLibrary::~ParameterLibrary() = default;

const DeviceDescription &ParameterLibrary::description() const
{
    return m_device.description();
}

SimulatedDevice &ParameterLibrary::device()
{
    return m_device;
}

Faults &ParameterLibrary::faults()
{
    return m_faults;
}

AccessCounters &ParameterLibrary::counters()
{
    return m_counters;
}

Publisher &ParameterLibrary::publisher()
{
    return m_publisher;
}

bool ParameterLibrary::isLive() const
{
    return m_isLive;
}

void ParameterLibrary::setLive(bool live)
{
    if (live == m_isLive)
        return;
    m_isLive = live;
    const QVector<int> ids = known();
    for (int id : ids)
        core(id)->forget();
    if (live) {
        m_device.start();
        takeFromDevice();
    } else {
        m_device.stop();
        m_publisher.discard();
    }
}

void ParameterLibrary::requireLive(int id) const
{
    if (m_isLive)
        return;
    const QString line =
        QStringLiteral("%1: the device is not connected").arg(description().fullName(id));
    throw GenICam::GenericException(line.toStdString(), __FILE__, __LINE__);
}

void ParameterLibrary::enter(ParameterCore *core)
{
    m_cores[static_cast<std::size_t>(core->id())] = core;
}

void ParameterLibrary::leave(const ParameterCore *core)
{
    m_cores[static_cast<std::size_t>(core->id())] = nullptr;
}

ParameterCore *ParameterLibrary::core(int id) const
{
    return m_cores[static_cast<std::size_t>(id)];
}

QVector<int> ParameterLibrary::known() const
{
    QVector<int> ids;
    for (const ParameterCore *core : m_cores) {
        if (core)
            ids.append(core->id());
    }
    return ids;
}

NodeOverrides ParameterLibrary::overrides(int id) const
{
    return m_overrides.value(id);
}

void ParameterLibrary::setOverride(int id, const QString &key, const QString &value)
{
    m_overrides[id].set(key, value);
    if (core(id))
        core(id)->drop();
}

Snapshot ParameterLibrary::read(int id)
{
    requireLive(id);
    const FeatureDescription &feature = description().feature(id);
    if (feature.type == ParameterCollection::ParameterType::Category)
        return makeCategorySnapshot(feature, overrides(id));
    const QString fullName = description().fullName(id);
    m_counters.count(fullName, &AccessCounts::reads);
    m_faults.beforeRead(fullName);
    std::optional<Value> forced;
    if (const std::optional<QVariant> variant = m_faults.forcedValue(fullName))
        forced = valueOf(feature, *variant);
    return makeSnapshot(feature, m_device.read(id), overrides(id), forced);
}

void ParameterLibrary::refresh(int id, bool force)
{
    m_counters.count(description().fullName(id), &AccessCounts::refreshes);
    requireLive(id);
    const Snapshot before = core(id)->published();
    const Snapshot now = core(id)->reread();
    if (force || (now->isImplemented && !sayTheSame(before, now)))
        publish({id});
}

void ParameterLibrary::invalidate(int id)
{
    if (!core(id))
        return;
    core(id)->drop();
    if (m_isLive)
        renewAndPublish({id}, {id});
}

void ParameterLibrary::poll()
{
    QVector<int> ids = known();
    const auto others = std::remove_if(
        ids.begin(), ids.end(), [this](int id) { return !description().feature(id).isPolled(); });
    ids.erase(others, ids.end());
    if (m_isLive)
        renewAndPublish(ids, {});
}

void ParameterLibrary::update()
{
    if (m_isLive)
        renewAndPublish(known(), {});
}

void ParameterLibrary::write(int id, const Value &value, bool verify)
{
    submit(id, [this, id, &value, verify] { return m_device.write(id, value, verify); });
}

void ParameterLibrary::execute(int id)
{
    submit(id, [this, id] { return m_device.execute(id); });
}

void ParameterLibrary::submit(int id, const std::function<QVector<int>()> &operation)
{
    requireLive(id);
    const QString fullName = description().fullName(id);
    m_counters.count(fullName, &AccessCounts::writes);
    QVector<int> changes;
    try {
        requireOverride(id);
        m_faults.beforeWrite(fullName);
        changes = operation();
    } catch (...) {
        restore(id);
        throw;
    }
    // The device has spoken: what was only pretended is over.
    m_faults.forgetForcedValue(fullName);
    const QVector<int> always = withDependants({id});
    renewAndPublish(always + withDependants(changes), always);
}

void ParameterLibrary::requireOverride(int id) const
{
    const auto &rules = description().feature(id).rules;
    const int target = rules && rules->aliasOf >= 0 ? rules->aliasOf : id;
    if (isWritable(overrides(id).access(AccessMode::ReadWrite))
        && isWritable(overrides(target).access(AccessMode::ReadWrite)))
        return;
    const QString line =
        QStringLiteral("%1: an override forbids writing").arg(description().fullName(id));
    throw GenICam::GenericException(line.toStdString(), __FILE__, __LINE__);
}

// An editor of a companion shows the other one as well.
void ParameterLibrary::restore(int id)
{
    QVector<int> ids {id};
    const auto &rules = description().feature(id).rules;
    if (rules && rules->aliasOf >= 0)
        ids.append(rules->aliasOf);
    if (m_isLive)
        renewAndPublish(ids, ids);
}

// What a selector selects has another value now, though nobody wrote it: its own dependants follow.
QVector<int> ParameterLibrary::withDependants(const QVector<int> &ids) const
{
    QVector<int> all;
    QSet<int> seen;
    QVector<int> changed = ids;
    while (!changed.isEmpty()) {
        const int id = changed.takeFirst();
        all.append(id);
        for (int dependant : description().feature(id).dependants) {
            all.append(dependant);
            const auto &rules = description().feature(dependant).rules;
            if (rules && rules->selectedBy.id == id && !seen.contains(dependant))
                changed.append(dependant);
            seen.insert(dependant);
        }
    }
    return all;
}

QVector<int> ParameterLibrary::companionsFirst(const QVector<int> &ids) const
{
    QVector<int> ordered = ids;
    std::stable_partition(ordered.begin(), ordered.end(), [this](int id) {
        const auto &rules = description().feature(id).rules;
        return rules && rules->aliasOf >= 0;
    });
    return ordered;
}

bool ParameterLibrary::renew(int id, bool always)
{
    ParameterCore *const parameter = core(id);
    if (!parameter)
        return false;
    if (!parameter->hasReceivers()) {
        // Whoever listens later knows nothing of what is dropped here.
        parameter->forget();
        return false;
    }
    const Snapshot before = parameter->published();
    parameter->drop();
    try {
        const Snapshot now = parameter->reread();
        return now->isImplemented && (always || !sayTheSame(before, now));
    } catch (...) {
        // Nothing is known, so nothing is published; who reads the parameter meets the fault.
        return false;
    }
}

void ParameterLibrary::renewAndPublish(const QVector<int> &ids, const QVector<int> &always)
{
    QVector<int> renewed;
    QSet<int> seen;
    for (int id : ids) {
        if (!seen.contains(id) && renew(id, always.contains(id)))
            renewed.append(id);
        seen.insert(id);
    }
    publish(companionsFirst(renewed));
}

void ParameterLibrary::publish(const QVector<int> &ids)
{
    for (int id : ids)
        m_unpublished.insert(id);
    // A receiver may write: then that write has published the final snapshot of an id already.
    for (int id : ids) {
        if (m_unpublished.remove(id) && core(id) && core(id)->last())
            m_publisher.publish(id, core(id)->takeForPublication());
    }
}

void ParameterLibrary::deliver(int id, const Snapshot &snapshot)
{
    // When deferred, the world may have changed since the snapshot was made.
    if (!m_isLive || !core(id) || !core(id)->hasReceivers())
        return;
    m_counters.count(description().fullName(id), &AccessCounts::publications);
    core(id)->emitSnapshot(snapshot);
}

void ParameterLibrary::takeFromDevice()
{
    if (!m_isLive)
        return;
    const QVector<int> trees = m_device.takeAttachedTrees();
    for (int tree : trees)
        Q_EMIT treeAttached(tree);
    renewAndPublish(withDependants(m_device.takeChanges()), {});
}

} // namespace Simulation
