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

/// Tab leads from the spin box to the slider, Shift+Tab (not `next`) back. False where the focus
/// stays: it leaves the editor then. A view that opens the editor puts its first part only into its
/// own order.
bool focusOtherPart(QAbstractSpinBox *spinBox, QSlider *slider, bool next);
