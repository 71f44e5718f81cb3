// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <Qt>

class QQuickView;

// The window Edit Feature Tabs, of which the application has one.
namespace Plugin::Tessera::Internal::View {

/// Flags of the window: a tool window with a title and nothing to close it by, above the
/// application's other windows or among them.
Qt::WindowFlags optionsWindowFlags(bool staysOnTop);

/// Minimum and first size of the window on a screen of that resolution.
QSize optionsWindowSize(double dotsPerInch);

/// Makes the types known that the window's scenes import: FeatureOptionsMenu 1.0 and the
/// PlatformInfo of Utils 1.0. Call it before `createOptionsWindow`.
void registerOptionsWindowTypes();

/// A new window, invisible. Its root object is a `CFeatureOptionsMenu`. The caller owns it.
QQuickView *createOptionsWindow();

} // namespace Plugin::Tessera::Internal::View
