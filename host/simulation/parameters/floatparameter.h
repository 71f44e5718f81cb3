// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/floatparameter.h"

#include "host/simulation/parameters/typedparameter.h"

namespace Simulation {

/// A floating point number of the device.
// Its base is a template, so its meta object is that of the interface.
class FloatParameter final // clazy:exclude=missing-qobject-macro
    : public TypedParameter<ParameterCollection::IFloatParameter>
{
public:
    using TypedParameter::TypedParameter;

    void setValue(double value, bool verify) override;
    double value() const override;
    double minimum() const override;
    double maximum() const override;
};

} // namespace Simulation
