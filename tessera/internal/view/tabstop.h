// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// Where Tab, or Shift+Tab unless `next`, leads from `from`: the nearest widget of its window that
/// takes the keyboard by Tab and can be seen, past those inside `from`. A widget in a dock behind
/// another, or scrolled out of sight, cannot be seen. Null where there is none.
QWidget *nextTabStop(QWidget *from, bool next);
