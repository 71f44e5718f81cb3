// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "integerparameterdata.h"

namespace ParameterCollection {

IntegerParameterData::IntegerParameterData()
    : ParameterData(ParameterType::Integer)
{
}

IntegerParameterData::~IntegerParameterData() = default;
IntegerParameterData::IntegerParameterData(const IntegerParameterData &other) = default;
IntegerParameterData &IntegerParameterData::operator=(const IntegerParameterData &other) = default;

} // namespace ParameterCollection
