// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Object names by which widgets are looked up.
namespace Plugin::Tessera::ObjectNames {

inline constexpr const char *Browser = "FeatureTreeWidgetClass";
inline constexpr const char *TreeView = "treeView";
inline constexpr const char *TableView = "tesseraTableView";

} // namespace Plugin::Tessera::ObjectNames
