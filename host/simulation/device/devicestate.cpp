// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "devicestate.h"

#include "aliasmapping.h"

#include <algorithm>
#include <cmath>
#include <numeric>

using ParameterCollection::ParameterType;

namespace Simulation {

namespace {

/// Limits may hang on each other in a ring; the device gives up after this many pulls.
constexpr int longestSettling = 256;

QHash<qint64, Value> startSelection(const FeatureDescription &feature)
{
    return feature.rules->selectedValues;
}

bool hangsOnSelector(const FeatureDescription &feature)
{
    return feature.rules && feature.rules->selectedBy.id >= 0;
}

qint64 steppedDown(qint64 value, qint64 minimum, qint64 increment)
{
    // The distance may take all 64 bits, so it is computed without a sign.
    const auto distance = static_cast<quint64>(value) - static_cast<quint64>(minimum);
    return static_cast<qint64>(static_cast<quint64>(value)
                               - distance % static_cast<quint64>(increment));
}

} // namespace

DeviceState::DeviceState(QSharedPointer<const DeviceDescription> description)
    : m_description(std::move(description))
{
    m_initial.values.reserve(m_description->features().size());
    for (const FeatureDescription &feature : m_description->features()) {
        if (hangsOnSelector(feature))
            m_initial.selections.insert(static_cast<int>(m_initial.values.size()),
                                        startSelection(feature));
        m_initial.values.push_back(feature.value);
    }
    m_image = m_initial;
}

const DeviceDescription &DeviceState::description() const
{
    return *m_description;
}

const FeatureDescription &DeviceState::feature(int id) const
{
    return m_description->feature(id);
}

qint64 DeviceState::selectorValue(int id) const
{
    return integerOf(value(feature(id).rules->selectedBy.id));
}

Value DeviceState::value(int id) const
{
    const FeatureDescription &described = feature(id);
    if (described.rules && described.rules->aliasOf >= 0) {
        const int owner = described.rules->aliasOf;
        const Limits range = limits(owner);
        return aliasFromFloat(*feature(owner).rules->alias, numberOf(value(owner)),
                              numberOf(range.minimum), numberOf(range.maximum));
    }
    if (hangsOnSelector(described)) {
        return selectedValue(id, selectorValue(id));
    }
    return m_image.values[static_cast<std::size_t>(id)];
}

Value DeviceState::selectedValue(int id, qint64 selection) const
{
    return m_image.selections.constFind(id)->value(selection, feature(id).value);
}

Value DeviceState::numberAs(int id, double number) const
{
    if (feature(id).type == ParameterType::Float)
        return number;
    return static_cast<qint64>(std::llround(number));
}

Value DeviceState::limitOf(int id, const std::optional<MovingLimit> &limit,
                           const Value &constant) const
{
    if (!limit)
        return constant;
    const Value start = limit->of.id >= 0 ? value(limit->of.id) : limit->constant;
    if (feature(id).type == ParameterType::Float) {
        return std::accumulate(limit->minus.cbegin(), limit->minus.cend(), numberOf(start),
                               [this](double sum, const FeatureReference &reference) {
                                   return sum - numberOf(value(reference.id));
                               });
    }
    return std::accumulate(limit->minus.cbegin(), limit->minus.cend(), integerOf(start),
                           [this](qint64 sum, const FeatureReference &reference) {
                               return sum - integerOf(value(reference.id));
                           });
}

Limits DeviceState::limits(int id) const
{
    const FeatureDescription &described = feature(id);
    Limits range {described.minimum, described.maximum, described.increment};
    if (described.rules) {
        range.minimum = limitOf(id, described.rules->minimum, range.minimum);
        range.maximum = limitOf(id, described.rules->maximum, range.maximum);
    }
    return range;
}

bool DeviceState::holds(const Condition &condition) const
{
    return condition.values.contains(integerOf(value(condition.feature.id)));
}

bool DeviceState::holdAll(const QVector<Condition> &conditions) const
{
    return std::all_of(conditions.cbegin(), conditions.cend(),
                       [this](const Condition &condition) { return holds(condition); });
}

AccessMode DeviceState::access(int id) const
{
    const FeatureDescription &described = feature(id);
    if (!described.rules || described.access == AccessMode::NotImplemented)
        return described.access;
    if (described.rules->aliasOf >= 0)
        return access(described.rules->aliasOf);
    const auto isTrue = [this](const Condition &condition) { return holds(condition); };
    const FeatureRules &rules = *described.rules;
    if (!holdAll(rules.availableWhile))
        return AccessMode::NotAvailable;
    if (std::any_of(rules.lockedWhile.cbegin(), rules.lockedWhile.cend(), isTrue))
        return narrowed(described.access, AccessMode::ReadOnly);
    return described.access;
}

QVector<int> DeviceState::entries(int id) const
{
    const QVector<EntryDescription> &all = feature(id).entries;
    QVector<int> available;
    available.reserve(all.size());
    for (int i = 0; i < all.size(); ++i) {
        if (holdAll(all.at(i).availableWhile))
            available.append(i);
    }
    return available;
}

void DeviceState::markChanged(int id)
{
    m_changed.insert(id);
    const FeatureDescription &described = feature(id);
    if (described.rules && described.rules->aliasId >= 0)
        m_changed.insert(described.rules->aliasId);
}

void DeviceState::store(int id, const Value &value)
{
    const FeatureDescription &described = feature(id);
    if (described.rules && described.rules->aliasOf >= 0) {
        const int owner = described.rules->aliasOf;
        const Limits range = limits(owner);
        store(owner,
              floatFromAlias(*feature(owner).rules->alias, integerOf(value),
                             numberOf(range.minimum), numberOf(range.maximum)));
    } else if (hangsOnSelector(described)) {
        storeSelected(id, selectorValue(id), value);
    } else if (m_image.values[static_cast<std::size_t>(id)] != value) {
        m_image.values[static_cast<std::size_t>(id)] = value;
        markChanged(id);
    }
}

void DeviceState::storeSelected(int id, qint64 selection, const Value &value)
{
    QHash<qint64, Value> &values = m_image.selections[id]; // clazy:exclude=detaching-member
    const auto present = values.constFind(selection);
    if (present != values.cend() && *present == value)
        return;
    values.insert(selection, value);
    // A value behind the selector is not seen until it is selected.
    if (selection == selectorValue(id))
        markChanged(id);
}

void DeviceState::change(int id, const Value &value)
{
    store(id, value);
    const FeatureDescription &described = feature(id);
    settle(described.rules && described.rules->aliasOf >= 0 ? described.rules->aliasOf : id);
}

void DeviceState::settle(int id)
{
    QVector<int> moved {id};
    for (int i = 0; i < moved.size() && i < longestSettling; ++i) {
        const QVector<int> &dependants = feature(moved.at(i)).dependants;
        for (int dependant : dependants) {
            const FeatureDescription &described = feature(dependant);
            if (!described.rules || !(described.rules->minimum || described.rules->maximum))
                continue;
            const Value present = value(dependant);
            const Value pulled = pulledIn(dependant, present);
            if (pulled == present)
                continue;
            store(dependant, pulled);
            moved.append(dependant);
        }
    }
}

Value DeviceState::pulledIn(int id, const Value &value) const
{
    const Limits range = limits(id);
    if (feature(id).type == ParameterType::Float)
        return std::max(numberOf(range.minimum),
                        std::min(numberOf(value), numberOf(range.maximum)));
    const qint64 minimum = integerOf(range.minimum);
    const qint64 bound = std::max(minimum, std::min(integerOf(value), integerOf(range.maximum)));
    return steppedDown(bound, minimum, integerOf(range.increment));
}

bool DeviceState::isRunning(int id) const
{
    return m_running.count(id) > 0;
}

void DeviceState::setRunning(int id, bool running)
{
    if (running)
        m_running.insert(id);
    else
        m_running.erase(id);
    markChanged(id);
}

bool DeviceState::belongsToUserSet(int id) const
{
    const FeatureDescription &described = feature(id);
    return described.access == AccessMode::ReadWrite && !described.isPolled()
        && described.type != ParameterType::Command
        && !described.name.startsWith(QLatin1String("UserSet"));
}

void DeviceState::saveUserSet(qint64 set)
{
    m_userSets.insert(set, m_image);
}

void DeviceState::loadUserSet(qint64 set)
{
    // A set that was never saved holds what the maker put there.
    const Image image = m_userSets.value(set, m_initial);
    for (int id = 0; id < m_description->size(); ++id) {
        if (!belongsToUserSet(id))
            continue;
        if (m_image.values[static_cast<std::size_t>(id)]
            != image.values[static_cast<std::size_t>(id)]) {
            m_image.values[static_cast<std::size_t>(id)] =
                image.values[static_cast<std::size_t>(id)];
            markChanged(id);
        }
        const auto selection = image.selections.constFind(id);
        if (selection != image.selections.cend() && m_image.selections.value(id) != *selection) {
            m_image.selections[id] = *selection;
            markChanged(id);
        }
    }
}

void DeviceState::reset()
{
    m_running.clear();
    m_image = m_initial;
    for (int id = 0; id < m_description->size(); ++id)
        m_changed.insert(id);
}

QVector<int> DeviceState::takeChanges()
{
    const QVector<int> changes(m_changed.cbegin(), m_changed.cend());
    m_changed.clear();
    return changes;
}

} // namespace Simulation
