// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/integerparameter.h"

#include "host/simulation/parameters/typedparameter.h"

namespace Simulation {

/// An integer of the device, or the companion of a float.
// Its base is a template, so its meta object is that of the interface.
class IntegerParameter final // clazy:exclude=missing-qobject-macro
    : public TypedParameter<ParameterCollection::IIntegerParameter>
{
public:
    using TypedParameter::TypedParameter;

    void setValue(qint64 value, bool verify) override;
    qint64 value() const override;
};

} // namespace Simulation
