// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "booleanparameterdata.h"

namespace ParameterCollection {

BooleanParameterData::BooleanParameterData()
    : ParameterData(ParameterType::Boolean)
{
}

BooleanParameterData::~BooleanParameterData() = default;
BooleanParameterData::BooleanParameterData(const BooleanParameterData &other) = default;
BooleanParameterData &BooleanParameterData::operator=(const BooleanParameterData &other) = default;

} // namespace ParameterCollection
