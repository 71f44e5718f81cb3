// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parameterdata.h"

namespace ParameterCollection {

ParameterData::ParameterData() = default;

ParameterData::ParameterData(ParameterType snapshotType)
    : type(snapshotType)
{
}

// Out of line, so that the type information behind dynamic casts stands in one library.
ParameterData::~ParameterData() = default;
ParameterData::ParameterData(const ParameterData &other) = default;
ParameterData &ParameterData::operator=(const ParameterData &other) = default;

} // namespace ParameterCollection
