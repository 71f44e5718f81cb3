// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameterdata.h"

namespace ParameterCollection {

/// Snapshot of a text; the text is `valueText`.
struct VANTREL_HOST_EXPORT StringParameterData : ParameterData
{
    StringParameterData();
    ~StringParameterData() override;
    StringParameterData(const StringParameterData &other);
    StringParameterData &operator=(const StringParameterData &other);
};

} // namespace ParameterCollection
