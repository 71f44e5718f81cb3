// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "nullnode.h"

namespace Simulation {

NullNode::NullNode() = default;
NullNode::~NullNode() = default;

QString NullNode::property(const QString &key) const
{
    return m_overrides.text(key).value_or(QString());
}

QString NullNode::property(const QString &key, const QString &defaultValue) const
{
    return m_overrides.text(key).value_or(defaultValue);
}

void NullNode::invalidate()
{
    // There is no value that could be dropped.
}

void NullNode::setProperty(const QString &key, const QString &value)
{
    m_overrides.set(key, value);
}

} // namespace Simulation
