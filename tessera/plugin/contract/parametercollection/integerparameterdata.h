// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameterdata.h"

namespace ParameterCollection {

/// Snapshot of an integer, in the unit that the property "Unit" names.
struct VANTREL_HOST_EXPORT IntegerParameterData : ParameterData
{
    IntegerParameterData();
    ~IntegerParameterData() override;
    IntegerParameterData(const IntegerParameterData &other);
    IntegerParameterData &operator=(const IntegerParameterData &other);

    qint64 value = 0;
    qint64 minimum = 0;
    qint64 maximum = 0;
    qint64 increment = 0; ///< step from `minimum` on; above 0 for sliders and aliases
    /// "HexNumber", "PureNumber", "Linear", "Logarithmic", "IPV4Address", "Boolean" or
    /// "MACAddress"; never empty, and the same word as the property "Representation".
    QString representation;
};

} // namespace ParameterCollection
