// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QQuickItem;
class QWidget;

namespace Tests {

/// The texts that a window has too little room for, each with its widget: those of the visible
/// labels, buttons, column and dock titles and search lines below `window`,
/// and of the window itself. What a device says (names, values) is left out.
QStringList cutTexts(const QWidget &window);

/// The same for the texts and help texts of a scene.
QStringList cutTexts(const QQuickItem &scene);

} // namespace Tests
