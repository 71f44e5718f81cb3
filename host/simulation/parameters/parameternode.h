// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameternode.h"

#include <QSharedPointer>

namespace Simulation {

class ParameterLibrary;

/// The texts of one feature, and the overrides set over them.
class ParameterNode final : public ParameterCollection::IParameterNode
{
    Q_OBJECT

public:
    ParameterNode(QSharedPointer<ParameterLibrary> library, int id);
    ~ParameterNode() override;

    QString property(const QString &key) const override;
    QString property(const QString &key, const QString &defaultValue) const override;
    void invalidate() override;
    void setProperty(const QString &key, const QString &value) override;

private:
    QSharedPointer<ParameterLibrary> m_library;
    int m_id;
};

} // namespace Simulation
