// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "floattext.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

// No double has more digits in its fraction; beyond it only memory would be filled with zeros.
constexpr int longestFraction = 1074;

bool isWhole(double value)
{
    double whole = 0.0;
    return std::modf(value, &whole) == 0.0;
}

void cutAtPoint(QString &text, QChar point)
{
    const int place = text.indexOf(point);
    if (place >= 0) {
        text.truncate(place);
    }
}

void stripZeros(QString &text, QChar point, QChar zero)
{
    const int place = text.indexOf(point);
    while (place >= 0 && text.size() - place > 2 && text.endsWith(zero)) {
        text.chop(1);
    }
}

} // namespace

QString formatFloat(double value, int precision, int flags, const QLocale &locale)
{
    const bool general = (flags & GeneralFormat) != 0;
    QString text =
        locale.toString(value, general ? 'g' : 'f', std::min(precision, longestFraction));
    if ((flags & KeepGroupSeparators) == 0 && std::abs(value) >= 1000.0) {
        text.remove(locale.groupSeparator());
    }
    if (general) {
        return text;
    }
    if ((flags & CutWholeNumbers) != 0 && isWhole(value)) {
        cutAtPoint(text, locale.decimalPoint());
    }
    if ((flags & StripTrailingZeros) != 0) {
        stripZeros(text, locale.decimalPoint(), locale.zeroDigit());
    }
    return text;
}
