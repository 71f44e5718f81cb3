// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameternode.h"

#include "host/simulation/parameters/nodeoverrides.h"

namespace Simulation {

/// The texts of an object that stands for no node: nothing but what is set over them.
class NullNode final : public ParameterCollection::IParameterNode
{
    Q_OBJECT

public:
    NullNode();
    ~NullNode() override;

    QString property(const QString &key) const override;
    QString property(const QString &key, const QString &defaultValue) const override;
    void invalidate() override;
    void setProperty(const QString &key, const QString &value) override;

private:
    NodeOverrides m_overrides;
};

} // namespace Simulation
