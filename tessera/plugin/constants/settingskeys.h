// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Everything that the plug-in keeps in the user's settings, by key inside one group. Keys that end
/// in "Prefix" get the number of a user pane, 0 to 3, or the id of a pane appended.
namespace Plugin::Tessera::SettingsKeys {

inline constexpr const char *Group = "Tessera";

inline constexpr const char *Polling = "Polling"; ///< bool
inline constexpr const char *UserTabNamePrefix = "UserTabName"; ///< text as the user typed it
/// Full names of features, joined with ",".
inline constexpr const char *UserTabFeatureNameListPrefix = "UserTabFeatureNameList";
inline constexpr const char *UserTabFeatureVisiblePrefix = "UserTabFeatureVisible"; ///< bool
inline constexpr const char *UserTabFeatureAvailablePrefix = "UserTabFeatureAvailable"; ///< bool
inline constexpr const char *FeatureColumnWidthPrefix = "FeatureColumnWidth"; ///< pixels
inline constexpr const char *CategoryColumnWidth = "CategoryColumnWidth"; ///< pixels
inline constexpr const char *ConnectedFeatureColumnWidth =
    "ConnectedFeatureColumnWidth"; ///< pixels
inline constexpr const char *DisplayNameCache = "DisplayNameCache"; ///< "name:text;" repeated

// Reserved: nothing reads or writes them.
inline constexpr const char *ViewAllFavorites = "ViewAllFavorites";
inline constexpr const char *WindowGeometry = "windowGeometry7.3";
inline constexpr const char *PanelState = "panelState7.3";
inline constexpr const char *BarState = "barState7.3";

} // namespace Plugin::Tessera::SettingsKeys
