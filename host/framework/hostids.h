// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// The ids of the host's own menus, groups and contexts, as text for `Core::CId`. Menus and groups
/// exist before the first plug-in is initialized.
namespace Host::Ids {

constexpr const char *cameraMenu = "VantrelViewer.Menu.Camera";
constexpr const char *windowMenu = "VantrelViewer.Menu.Window";
/// In the Camera menu: takes the copy command.
constexpr const char *cameraFeaturesGroup = "VantrelViewer.Group.Camera.Features";
/// In the Window menu: lists the dockable windows.
constexpr const char *windowsGroup = "VantrelViewer.Group.Window.Windows";
/// A container whose actions are appended to the context menu of feature panes.
constexpr const char *featureTreeContextMenu = "VantrelViewer.FeatureTreeContextMenu";
constexpr const char *globalContext = "AppCore.Global.Context";

} // namespace Host::Ids
