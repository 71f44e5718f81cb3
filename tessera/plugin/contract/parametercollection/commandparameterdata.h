// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameterdata.h"

namespace ParameterCollection {

/// Snapshot of a command.
struct VANTREL_HOST_EXPORT CommandParameterData : ParameterData
{
    CommandParameterData();
    ~CommandParameterData() override;
    CommandParameterData(const CommandParameterData &other);
    CommandParameterData &operator=(const CommandParameterData &other);

    /// False while the command runs, true when the device is idle again.
    bool isDone = false;
};

} // namespace ParameterCollection
