// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>

class QString;

/// The colours of what stands on the white ground of a browser, whatever those of the system:
/// dark text on light grounds. The highlight is the system's.
QPalette lightPalette();

/// True where text of the system would not show on white.
bool isSystemDark();

/// How a style sheet names the colour `role` of that palette. Style sheets take "palette(name)"
/// from the palette of the application, so this is the colour itself on a dark system.
QString lightStyleColour(QPalette::ColorRole role, const char *name);
