// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

/// Dotted ids that plug-in and host exchange.
namespace Plugin::Tessera::Ids {

// Ours. The id of a pane is the id of its dock as well.
inline constexpr const char *AllPane = "Tessera.Widget.All";
inline constexpr const char *BasicPane = "Tessera.Widget.Basic";
/// By the number of the user tab.
inline constexpr std::array<const char *, 4> UserPanes {
    "Tessera.Widget.User0",
    "Tessera.Widget.User1",
    "Tessera.Widget.User2",
    "Tessera.Widget.User3",
};
/// Appended to the id of a user pane for its entry in the Window menu.
inline constexpr const char *MenuItemSuffix = "menuItem";
inline constexpr const char *CopyCameraFeatures = "Tessera.CopyCameraFeatures";

// The host's.
inline constexpr const char *CameraMenu = "VantrelViewer.Menu.Camera";
inline constexpr const char *CameraFeaturesGroup = "VantrelViewer.Group.Camera.Features";
inline constexpr const char *WindowMenu = "VantrelViewer.Menu.Window";
inline constexpr const char *WindowsGroup = "VantrelViewer.Group.Window.Windows";
inline constexpr const char *FeatureTreeContextMenu = "VantrelViewer.FeatureTreeContextMenu";
inline constexpr const char *GlobalContext = "AppCore.Global.Context";

/// Name of the plug-in whose presence changes the hint of an empty pane.
inline constexpr const char *WorkbenchPlugin = "Workbench";

} // namespace Plugin::Tessera::Ids
