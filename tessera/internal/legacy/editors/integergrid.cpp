// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "integergrid.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int smallestInt = std::numeric_limits<int>::min();
constexpr int largestInt = std::numeric_limits<int>::max();

int wrappedDifference(int left, int right)
{
    return static_cast<int>(static_cast<unsigned int>(left) - static_cast<unsigned int>(right));
}

// The smallest int has no positive counterpart and stays what it is.
int wrappedAbs(int value)
{
    return value == smallestInt ? value : qAbs(value);
}

} // namespace

int saturatedInt(qint64 value)
{
    return static_cast<int>(qBound(qint64 {smallestInt}, value, qint64 {largestInt}));
}

int lowInt(qint64 value)
{
    return static_cast<int>(static_cast<quint32>(value));
}

int truncatedInt(double value)
{
    const bool fits = value > smallestInt - 1.0 && value < largestInt + 1.0;
    return fits ? static_cast<int>(value) : smallestInt;
}

int onGrid(int value, int minimum, int step)
{
    if (step == 0) {
        return value;
    }
    return saturatedInt(value - (qint64 {value} - minimum) % step);
}

int movedBy(int position, int count, int step)
{
    return saturatedInt(position + qint64 {count} * step);
}

int pageStepFor(int minimum, int maximum, int increment)
{
    const int twentieth = wrappedAbs(wrappedDifference(maximum, minimum)) / 20;
    return std::max(twentieth, saturatedInt(qint64 {2} * increment));
}
