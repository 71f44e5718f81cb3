// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// True when the wheel may change the value of `part`, a cell editor or a child of one: only while
/// the editor holds the keyboard focus. Otherwise the event is to be ignored, so that it scrolls
/// the table. `part` must not have `Qt::WheelFocus`, with which the wheel itself gives the focus.
bool takesWheel(const QWidget &part);
