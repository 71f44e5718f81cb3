// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>

/// What Escape and Return mean in the spin box of a cell: neither is left to the view, which would
/// end the editing.

/// Escape takes back what was typed.
bool isUndoKey(const QKeyEvent &event);
/// The key press by which a line edit takes back what was typed.
QKeyEvent undoKeyPress();
/// Return and Enter have done their work in the spin box.
bool isFinishKey(const QKeyEvent &event);
