// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class QAction;
class QIcon;
class QLineEdit;

/// Puts `icon` at the end of `edit`, with room around it: the canvas is `sevenths` / 7 of the
/// icon, which is as high as the line. The action belongs to `edit`.
QAction *addTrailingIcon(QLineEdit *edit, const QIcon &icon, int sevenths);
