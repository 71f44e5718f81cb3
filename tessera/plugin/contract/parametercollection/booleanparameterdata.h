// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameterdata.h"

namespace ParameterCollection {

/// Snapshot of a switch.
struct VANTREL_HOST_EXPORT BooleanParameterData : ParameterData
{
    BooleanParameterData();
    ~BooleanParameterData() override;
    BooleanParameterData(const BooleanParameterData &other);
    BooleanParameterData &operator=(const BooleanParameterData &other);

    bool value = false;
};

} // namespace ParameterCollection
