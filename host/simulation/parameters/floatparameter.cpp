// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "floatparameter.h"

#include "plugin/contract/parametercollection/floatparameterdata.h"

using ParameterCollection::FloatParameterData;

namespace Simulation {

void FloatParameter::setValue(double value, bool verify)
{
    write(value, verify);
}

double FloatParameter::value() const
{
    return snapshot().staticCast<const FloatParameterData>()->value;
}

double FloatParameter::minimum() const
{
    return snapshot().staticCast<const FloatParameterData>()->minimum;
}

double FloatParameter::maximum() const
{
    return snapshot().staticCast<const FloatParameterData>()->maximum;
}

} // namespace Simulation
