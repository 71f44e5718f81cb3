// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "aliasmapping.h"

#include <QtGlobal>

#include <cmath>

namespace Simulation {

qint64 aliasFromFloat(const AliasRule &rule, double value, double minimum, double maximum)
{
    const auto low = static_cast<double>(rule.minimum);
    const auto high = static_cast<double>(rule.maximum);
    double alias = value;
    if (rule.mapping == AliasRule::Mapping::Linear)
        alias =
            maximum > minimum ? low + (value - minimum) / (maximum - minimum) * (high - low) : low;
    alias = qBound(low, std::isfinite(alias) ? alias : low, high);
    const auto step = static_cast<double>(rule.increment);
    const double stepped = low + std::round((alias - low) / step) * step;
    return static_cast<qint64>(stepped > high ? stepped - step : stepped);
}

double floatFromAlias(const AliasRule &rule, qint64 alias, double minimum, double maximum)
{
    auto value = static_cast<double>(alias);
    if (rule.mapping == AliasRule::Mapping::Linear) {
        const auto low = static_cast<double>(rule.minimum);
        const auto high = static_cast<double>(rule.maximum);
        value = minimum + (value - low) / (high - low) * (maximum - minimum);
    }
    return qBound(minimum, value, maximum);
}

} // namespace Simulation
