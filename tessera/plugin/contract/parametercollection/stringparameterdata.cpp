// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "stringparameterdata.h"

namespace ParameterCollection {

StringParameterData::StringParameterData()
    : ParameterData(ParameterType::String)
{
}

StringParameterData::~StringParameterData() = default;
StringParameterData::StringParameterData(const StringParameterData &other) = default;
StringParameterData &StringParameterData::operator=(const StringParameterData &other) = default;

} // namespace ParameterCollection
