// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "enumparameterdata.h"

namespace ParameterCollection {

EnumParameterData::EnumParameterData()
    : ParameterData(ParameterType::Enumeration)
{
}

EnumParameterData::~EnumParameterData() = default;
EnumParameterData::EnumParameterData(const EnumParameterData &other) = default;
EnumParameterData &EnumParameterData::operator=(const EnumParameterData &other) = default;

} // namespace ParameterCollection
