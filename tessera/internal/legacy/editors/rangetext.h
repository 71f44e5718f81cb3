// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QLocale;

/// The texts that fill the tool tips of numeric editors.

/// `limit` in base 10 or 16, with a minus sign in both.
QString limitText(int limit, int base);

/// Limits and step of a float as texts.
struct FloatRangeText
{
    QString minimum;
    QString maximum;
    QString increment;
    bool hasIncrement = false; ///< the text of the increment is not that of zero
};

/// `flags` as for `formatFloat`.
FloatRangeText floatRangeText(double minimum, double maximum, double increment, int precision,
                              int flags, const QLocale &locale);

/// The flags for a range by its magnitude: `GeneralFormat` beyond 1e9.
int floatRangeFlags(double minimum, double maximum);
