// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "rangetext.h"

#include "floattext.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

QString limitText(int limit, int base)
{
    // Qt writes negative numbers in other bases than 10 as two's complement.
    const QString digits = QString::number(qAbs(qint64 {limit}), base);
    return limit < 0 ? QLatin1Char('-') + digits : digits;
}

FloatRangeText floatRangeText(double minimum, double maximum, double increment, int precision,
                              int flags, const QLocale &locale)
{
    FloatRangeText text;
    text.minimum = formatFloat(minimum, precision, flags, locale);
    text.maximum = formatFloat(maximum, precision, flags, locale);
    text.increment = formatFloat(increment, precision, flags, locale);
    text.hasIncrement = locale.toDouble(text.increment) != 0.0;
    return text;
}

int floatRangeFlags(double minimum, double maximum)
{
    const double magnitude = std::max(std::abs(minimum), std::abs(maximum));
    return magnitude > 1000000000.0 ? GeneralFormat : StripTrailingZeros;
}
