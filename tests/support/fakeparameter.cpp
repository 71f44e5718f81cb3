// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/fakeparameter.h"

namespace Tests {

FakeParameterNode::FakeParameterNode(const QSharedPointer<FakeNode> &node)
    : m_node(node)
{
}

FakeParameterNode::~FakeParameterNode() = default;

QString FakeParameterNode::property(const QString &key) const
{
    return property(key, QString());
}

QString FakeParameterNode::property(const QString &key, const QString &defaultValue) const
{
    raise(m_node->onProperty);
    return m_node->properties.value(key, defaultValue);
}

void FakeParameterNode::invalidate()
{
    ++m_node->invalidations;
}

void FakeParameterNode::setProperty(const QString &key, const QString &value)
{
    m_node->properties.insert(key, value);
}

} // namespace Tests
