// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Names of log categories, one for each source file that writes entries.
namespace Plugin::Tessera::LogCategories {

inline constexpr const char *Plugin = "vantrel.viewer.plugins.tessera";
inline constexpr const char *Pane = "vantrel.viewer.plugins.tessera.featureTreeDockWidget";
inline constexpr const char *Browser = "vantrel.viewer.plugins.tessera.featureTreeWidget";
inline constexpr const char *TreeModel = "vantrel.viewer.plugins.tessera.featureTreeModel";
inline constexpr const char *NodeItem = "vantrel.viewer.plugins.tessera.nodeItem";

} // namespace Plugin::Tessera::LogCategories
