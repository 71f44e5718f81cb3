// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// The integer arithmetic behind sliders and spin boxes, whose widgets count in `int`.

/// The `int` nearest to `value`.
int saturatedInt(qint64 value);
/// The low 32 bits of `value`.
int lowInt(qint64 value);
/// `value` without its fraction; the smallest `int` for what no `int` can hold, not-a-number too.
int truncatedInt(double value);

/// The point of the grid minimum + k * step that `value` stands on or passed last, seen from
/// `minimum`; `value` itself where `step` is 0.
int onGrid(int value, int minimum, int step);
/// `position` moved by `count` steps, kept within `int`.
int movedBy(int position, int count, int step);

/// The step of a page key: the twentieth part of the span, but at least two increments. A span that
/// no `int` can hold wraps around, so that the increment may decide.
int pageStepFor(int minimum, int maximum, int increment);
