// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "simulateddevice.h"

#include "commandeffects.h"
#include "devicethread.h"

#include "behaviours/behaviour.h"
#include "behaviours/behaviours.h"

#include "plugin/contract/genapi/invalidargumentexception.h"

#include <algorithm>

using ParameterCollection::ParameterType;

namespace Simulation {

namespace {

template<typename Exception>
[[noreturn]] void refuse(const DeviceDescription &description, int id, const QString &why)
{
    const QString line = QStringLiteral("%1: %2").arg(description.fullName(id), why);
    throw Exception(line.toStdString(), __FILE__, __LINE__);
}

} // namespace

SimulatedDevice::SimulatedDevice(QSharedPointer<const DeviceDescription> description,
                                 std::function<void()> announce)
    : m_description(std::move(description))
    , m_announce(std::move(announce))
    , m_state(m_description)
    , m_behaviours(makeBehaviours(*m_description))
    , m_isAttached(m_description->trees().size(), false)
{
}

SimulatedDevice::~SimulatedDevice() = default;

const DeviceDescription &SimulatedDevice::description() const
{
    return *m_description;
}

void SimulatedDevice::start()
{
    if (m_thread)
        return;
    m_upTimeMs = 0;
    attachTrees(0);
    m_thread = std::make_unique<DeviceThread>([this](int elapsedMs) {
        advance(elapsedMs);
        return isBusy();
    });
}

void SimulatedDevice::stop()
{
    m_thread.reset();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_changes.clear();
    m_isAnnounced = false;
}

Reading SimulatedDevice::read(int id) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Reading reading;
    reading.access = m_state.access(id);
    reading.value = m_state.value(id);
    reading.limits = m_state.limits(id);
    reading.entries = m_state.entries(id);
    reading.isDone = !m_state.isRunning(id);
    return reading;
}

Value SimulatedDevice::value(int id) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state.value(id);
}

void SimulatedDevice::verifyWrite(int id, const Value &value) const
{
    using GenICam::InvalidArgumentException;
    const FeatureDescription &feature = m_description->feature(id);
    const Limits limits = m_state.limits(id);
    switch (feature.type) {
    case ParameterType::Integer:
        if (integerOf(value) < integerOf(limits.minimum)
            || integerOf(value) > integerOf(limits.maximum))
            refuse<InvalidArgumentException>(*m_description, id,
                                             QStringLiteral("the value lies outside its limits"));
        if (m_state.pulledIn(id, value) != value)
            refuse<InvalidArgumentException>(*m_description, id,
                                             QStringLiteral("the value lies between two steps"));
        break;
    case ParameterType::Float:
        // Written so that it refuses what is not a number as well.
        if (!(numberOf(value) >= numberOf(limits.minimum)
              && numberOf(value) <= numberOf(limits.maximum)))
            refuse<InvalidArgumentException>(*m_description, id,
                                             QStringLiteral("the value lies outside its limits"));
        break;
    case ParameterType::Enumeration:
        if (!m_state.entries(id).contains(static_cast<int>(integerOf(value))))
            refuse<InvalidArgumentException>(*m_description, id,
                                             QStringLiteral("the entry is not available"));
        break;
    case ParameterType::String:
        if (feature.maxLength > 0 && bytesOf(value).size() > feature.maxLength)
            refuse<InvalidArgumentException>(*m_description, id,
                                             QStringLiteral("the text is too long"));
        break;
    default:
        break;
    }
}

QVector<int> SimulatedDevice::write(int id, const Value &value, bool verify)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const ParameterType type = m_description->feature(id).type;
    if (!isWritable(m_state.access(id)))
        refuse<GenICam::GenericException>(*m_description, id, QStringLiteral("is not writable"));
    const bool isNumber = type == ParameterType::Integer || type == ParameterType::Float;
    // A number is pulled in unless asked to verify; everything else cannot be but right.
    if (verify || !isNumber)
        verifyWrite(id, value);
    collectChanges();
    m_state.change(id, isNumber ? m_state.pulledIn(id, value) : value);
    return m_state.takeChanges();
}

QVector<int> SimulatedDevice::execute(int id)
{
    QVector<int> changes;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!isWritable(m_state.access(id)))
            refuse<GenICam::GenericException>(*m_description, id,
                                              QStringLiteral("cannot be executed now"));
        // What the camera did meanwhile is none of the command's doing.
        collectChanges();
        const FeatureDescription &feature = m_description->feature(id);
        const int duration = feature.rules ? feature.rules->durationMs : 0;
        if (duration > 0) {
            m_state.setRunning(id, true);
            m_commands.insert(id, duration);
        } else {
            applyEffect(m_state, id);
        }
        changes = m_state.takeChanges();
    }
    if (m_thread)
        m_thread->wake();
    return changes;
}

void SimulatedDevice::change(int id, const Value &value)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_state.change(id, value);
    }
    if (m_thread)
        m_thread->wake();
}

QVector<int> SimulatedDevice::takeChanges()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isAnnounced = false;
    return std::exchange(m_changes, {});
}

QVector<int> SimulatedDevice::takeAttachedTrees()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_attachedTrees, {});
}

void SimulatedDevice::advance(int elapsedMs)
{
    bool isToBeAnnounced = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (const std::unique_ptr<Behaviour> &behaviour : m_behaviours)
            behaviour->advance(m_state, elapsedMs);
        advanceCommands(elapsedMs);
        attachTrees(elapsedMs);
        collectChanges();
        isToBeAnnounced = !m_isAnnounced && !(m_changes.isEmpty() && m_attachedTrees.isEmpty());
        m_isAnnounced = m_isAnnounced || isToBeAnnounced;
    }
    // Outside the lock, for the listener may come straight back.
    if (isToBeAnnounced)
        m_announce();
}

void SimulatedDevice::advanceCommands(int elapsedMs)
{
    QVector<int> finished;
    const auto end = m_commands.end(); // clazy:exclude=detaching-member
    for (auto it = m_commands.begin(); it != end; ++it) { // clazy:exclude=detaching-member
        *it -= elapsedMs;
        if (*it <= 0)
            finished.append(it.key());
    }
    for (int id : qAsConst(finished))
        finishCommand(id);
}

void SimulatedDevice::finishCommand(int id)
{
    // Idle first: an effect such as a reset may look at what still runs.
    m_commands.remove(id);
    m_state.setRunning(id, false);
    applyEffect(m_state, id);
}

void SimulatedDevice::attachTrees(int elapsedMs)
{
    m_upTimeMs += elapsedMs;
    for (std::size_t i = 0; i < m_isAttached.size(); ++i) {
        if (m_isAttached[i] || m_description->trees()[i].attachAfterMs > m_upTimeMs)
            continue;
        m_isAttached[i] = true;
        m_attachedTrees.append(static_cast<int>(i));
    }
}

void SimulatedDevice::collectChanges()
{
    const QVector<int> changed = m_state.takeChanges();
    std::copy_if(changed.cbegin(), changed.cend(), std::back_inserter(m_changes),
                 [this](int id) { return !m_description->feature(id).isPolled(); });
}

bool SimulatedDevice::isBusy() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_behaviours.empty() || !m_commands.isEmpty()
        || std::find(m_isAttached.cbegin(), m_isAttached.cend(), false) != m_isAttached.cend();
}

} // namespace Simulation
