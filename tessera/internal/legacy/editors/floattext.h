// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QLocale;

/// How `formatFloat` writes a number; to be combined.
enum FloatTextFlag : int {
    StripTrailingZeros = 1, ///< of the fraction, down to one digit after the decimal point
    GeneralFormat = 2, ///< 'g' in place of 'f'; neither 1 nor 4 counts then
    CutWholeNumbers = 4, ///< a whole number has no decimal point
    KeepGroupSeparators = 8,
};

/// The text of `value` as spin boxes and tool tips of floats show it. `precision` counts the digits
/// after the decimal point, with `GeneralFormat` all digits.
QString formatFloat(double value, int precision, int flags, const QLocale &locale);
