// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "integerparameter.h"

#include "plugin/contract/parametercollection/integerparameterdata.h"

using ParameterCollection::IntegerParameterData;

namespace Simulation {

void IntegerParameter::setValue(qint64 value, bool verify)
{
    write(value, verify);
}

qint64 IntegerParameter::value() const
{
    return snapshot().staticCast<const IntegerParameterData>()->value;
}

} // namespace Simulation
