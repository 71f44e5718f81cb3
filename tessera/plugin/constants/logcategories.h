// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Names of log categories, one for each source file that writes entries.
namespace Plugin::Tessera::LogCategories {

inline constexpr const char *Plugin = "vantrel.viewer.plugins.tessera";
inline constexpr const char *Pane = "vantrel.viewer.plugins.tessera.featureTreeDockWidget";
inline constexpr const char *Browser = "vantrel.viewer.plugins.tessera.featureTreeWidget";
inline constexpr const char *UseCaseService = "vantrel.viewer.plugins.tessera.useCaseService";
inline constexpr const char *TreeModel = "vantrel.viewer.plugins.tessera.featureTreeModel";
inline constexpr const char *TableModel = "vantrel.viewer.plugins.tessera.featureTableModel";
inline constexpr const char *NodeItem = "vantrel.viewer.plugins.tessera.nodeItem";
inline constexpr const char *EnumEditor = "vantrel.viewer.plugins.tessera.enumEditor";
inline constexpr const char *ToolButtonEditor = "vantrel.viewer.plugins.tessera.toolButtonEditor";
inline constexpr const char *IntEditor = "vantrel.viewer.plugins.tessera.intEditor";
inline constexpr const char *ComboSlider = "vantrel.viewer.plugins.tessera.legacy.comboSlider";
inline constexpr const char *IntSliderEditor = "vantrel.viewer.plugins.tessera.intSliderEditor";
inline constexpr const char *FloatEditor = "vantrel.viewer.plugins.tessera.floatEditor";
inline constexpr const char *FloatSliderEditor = "vantrel.viewer.plugins.tessera.floatSliderEditor";

} // namespace Plugin::Tessera::LogCategories
