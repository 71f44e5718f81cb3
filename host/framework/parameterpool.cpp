// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parameterpool.h"

#include "plugin/contract/parametercollection/parametercollection.h"

namespace Host {

using Core::AppCoreComponents::BaseInfoPtr;
using ParameterCollection::IParameterCollection;

ParameterPool::ParameterPool(QObject *parent)
    : IParameterService(parent)
{
}

ParameterPool::~ParameterPool() = default;

void ParameterPool::insert(const BaseInfoPtr &record,
                           const QSharedPointer<IParameterCollection> &collection)
{
    Q_ASSERT(record && collection);
    m_collections.insert(record, collection);
}

void ParameterPool::remove(const BaseInfoPtr &record)
{
    m_collections.remove(record);
}

QSharedPointer<IParameterCollection> ParameterPool::parameterCollection(BaseInfoPtr info)
{
    return m_collections.value(info);
}

} // namespace Host
