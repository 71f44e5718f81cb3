// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

#include <QSharedPointer>
#include <QString>

namespace Simulation {

/// An object that stands for no node, as a backend hands out for a name that it knows without
/// having a feature for it. Overrides can be stored at it; reads and writes throw.
class NullParameter final : public ParameterCollection::IParameter
{
    Q_OBJECT

public:
    NullParameter(const QString &fullName, bool hasFilterTarget);
    ~NullParameter() override;

    void setFromString(const QString &value) override;
    bool isNull() const override;
    bool isWritable() const override;
    bool isImplemented() const override;
    bool hasFilterTarget() const override;
    GenApi::EVisibility visibility() const override;
    ParameterCollection::ParameterType type() const override;
    QString fullName() const override;
    QString name() const override;
    QSharedPointer<ParameterCollection::IParameterNode> node() const override;
    QSharedPointer<const ParameterCollection::ParameterData> parameterData() const override;
    void refresh(bool force) override;

private:
    [[noreturn]] void refuse() const;

    QString m_fullName;
    bool m_hasFilterTarget;
    QSharedPointer<ParameterCollection::IParameterNode> m_node;
};

} // namespace Simulation
