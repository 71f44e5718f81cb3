// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "floatparameterdata.h"

namespace ParameterCollection {

FloatParameterData::FloatParameterData()
    : ParameterData(ParameterType::Float)
{
}

FloatParameterData::~FloatParameterData() = default;
FloatParameterData::FloatParameterData(const FloatParameterData &other) = default;
FloatParameterData &FloatParameterData::operator=(const FloatParameterData &other) = default;

} // namespace ParameterCollection
