// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QAction;
class QIcon;
class QLineEdit;

/// Puts `icon` at the end of `edit`, with room around it: the canvas is `sevenths` / 7 of the
/// icon, which is as high as the line. The action belongs to `edit`. Edits share the picture by
/// `name`, which tells this icon from others.
QAction *addTrailingIcon(QLineEdit *edit, const QString &name, const QIcon &icon, int sevenths);

/// The button by which `edit` gives up what it holds, in the look of the application's style; null
/// without a style.
QAction *addTrailingCross(QLineEdit *edit);
