// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "simulatedcollection.h"

#include "parameters/nullparameter.h"
#include "parameters/parameterkinds.h"
#include "parameters/parameterlibrary.h"
#include "parameters/variantvalue.h"

#include "plugin/contract/genapi/invalidargumentexception.h"

using ParameterCollection::IParameter;

namespace Simulation {

SimulatedCollection::SimulatedCollection(QSharedPointer<const DeviceDescription> description,
                                         State state)
    : m_library(QSharedPointer<ParameterLibrary>::create(std::move(description)))
{
    connect(m_library.data(), &ParameterLibrary::treeAttached, this,
            &SimulatedCollection::onTreeAttached);
    if (state == State::Live)
        revive();
}

SimulatedCollection::~SimulatedCollection()
{
    // Whoever holds a parameter longer than the collection holds one that is null.
    unplug();
}

int SimulatedCollection::find(const QString &fullName) const
{
    const int id = description().find(fullName);
    if (id < 0)
        return -1;
    const auto tree = static_cast<std::size_t>(description().feature(id).tree);
    return m_attachedPaths.contains(description().trees()[tree].path) ? id : -1;
}

std::optional<bool> SimulatedCollection::nullObject(const QString &fullName) const
{
    using NullObject = FeatureRules::NullObject;
    const std::optional<bool> byFault = m_library->faults().nullObject(fullName);
    const int id = find(fullName);
    if (byFault || id < 0 || !description().feature(id).rules)
        return byFault;
    const NullObject kind = description().feature(id).rules->nullObject;
    if (kind == NullObject::No)
        return std::nullopt;
    return kind == NullObject::FilterTarget;
}

QSharedPointer<IParameter> SimulatedCollection::makeObject(const QString &fullName) const
{
    if (const std::optional<bool> hasFilterTarget = nullObject(fullName))
        return QSharedPointer<NullParameter>::create(fullName, *hasFilterTarget);
    const int id = find(fullName);
    return id < 0 ? QSharedPointer<IParameter>() : makeParameter(m_library, id);
}

QSharedPointer<IParameter> SimulatedCollection::parameter(const QString &fullName)
{
    const auto known = m_parameters.constFind(fullName);
    if (known != m_parameters.cend())
        return *known;
    QSharedPointer<IParameter> made = makeObject(fullName);
    if (made)
        m_parameters.insert(fullName, made);
    return made;
}

bool SimulatedCollection::contains(const QString &fullName) const
{
    return find(fullName) >= 0 || nullObject(fullName).has_value();
}

QStringList SimulatedCollection::attachedParameterPaths() const
{
    return m_attachedPaths;
}

QStringList SimulatedCollection::children(const QString &parentFullName, int reserved,
                                          bool flag) const
{
    Q_UNUSED(reserved)
    Q_UNUSED(flag)
    const int id = find(parentFullName);
    return id < 0 ? QStringList() : description().childNames(id);
}

void SimulatedCollection::endBatchUpdate()
{
    m_library->update();
}

void SimulatedCollection::poll(int elapsedMilliseconds)
{
    Q_UNUSED(elapsedMilliseconds)
    m_library->poll();
}

const DeviceDescription &SimulatedCollection::description() const
{
    return m_library->description();
}

void SimulatedCollection::setPublication(Publication publication)
{
    m_library->publisher().setPublication(publication);
}

Faults &SimulatedCollection::faults()
{
    return m_library->faults();
}

AccessCounters &SimulatedCollection::counters()
{
    return m_library->counters();
}

QVariant SimulatedCollection::deviceValue(const QString &fullName) const
{
    const int id = description().find(fullName);
    if (id < 0)
        return {};
    return variantOf(description().feature(id), m_library->device().value(id));
}

void SimulatedCollection::changeOnDevice(const QString &fullName, const QVariant &value)
{
    const int id = description().find(fullName);
    if (id < 0) {
        const QString line = QStringLiteral("%1: the device has no such feature").arg(fullName);
        throw GenICam::InvalidArgumentException(line.toStdString(), __FILE__, __LINE__);
    }
    m_library->device().change(id, valueOf(description().feature(id), value));
}

bool SimulatedCollection::isLive() const
{
    return m_library->isLive();
}

void SimulatedCollection::unplug()
{
    m_library->setLive(false);
}

void SimulatedCollection::revive()
{
    m_library->setLive(true);
}

void SimulatedCollection::onTreeAttached(int tree)
{
    const QString path = description().trees()[static_cast<std::size_t>(tree)].path;
    m_attachedPaths.append(path);
    Q_EMIT nodeMapAttached(path);
}

} // namespace Simulation
