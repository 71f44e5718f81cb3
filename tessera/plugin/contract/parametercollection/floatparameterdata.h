// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameterdata.h"

namespace ParameterCollection {

/// Snapshot of a floating point number, in the unit that the property "Unit" names.
struct VANTREL_HOST_EXPORT FloatParameterData : ParameterData
{
    FloatParameterData();
    ~FloatParameterData() override;
    FloatParameterData(const FloatParameterData &other);
    FloatParameterData &operator=(const FloatParameterData &other);

    double value = 0.0;
    double minimum = 0.0;
    double maximum = 0.0;
    bool hasIncrement = false; ///< `increment` holds a step
    double increment = 0.0; ///< step, valid only while `hasIncrement` is true
    qint64 displayPrecision = 0; ///< decimals to show
    QString representation; ///< "Linear", "Logarithmic" or "PureNumber"
};

} // namespace ParameterCollection
