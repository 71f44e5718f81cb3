// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class QAbstractSpinBox;
class QSlider;
class QWidget;

/// Puts spin box and slider side by side into `editor`, which passes the focus on to the spin box.
/// Returns the least width of the spin box in pixels: that of a number of twelve digits in its font
/// and style.
int layOutSlider(QWidget *editor, QAbstractSpinBox *spinBox, QSlider *slider);
