// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "commandparameterdata.h"

namespace ParameterCollection {

CommandParameterData::CommandParameterData()
    : ParameterData(ParameterType::Command)
{
}

CommandParameterData::~CommandParameterData() = default;
CommandParameterData::CommandParameterData(const CommandParameterData &other) = default;
CommandParameterData &CommandParameterData::operator=(const CommandParameterData &other) = default;

} // namespace ParameterCollection
