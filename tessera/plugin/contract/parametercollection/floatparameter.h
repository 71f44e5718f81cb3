// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

namespace ParameterCollection {

/// A floating point number. Its snapshots are `FloatParameterData`. A float that is to get a slider
/// has an integer companion under its own full name followed by "/Alias".
class VANTREL_HOST_EXPORT IFloatParameter : public IParameter
{
    Q_OBJECT

public:
    explicit IFloatParameter(QObject *parent = nullptr);
    ~IFloatParameter() override;

    /// Writes `value`; `verify` as for `IIntegerParameter::setValue`.
    virtual void setValue(double value, bool verify = true) = 0;
    virtual double value() const = 0;
    virtual double minimum() const = 0;
    virtual double maximum() const = 0;
};

} // namespace ParameterCollection
