// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Object names by which widgets are looked up.
namespace Plugin::Tessera::ObjectNames {

inline constexpr const char *Browser = "FeatureTreeWidgetClass";
inline constexpr const char *TreeView = "treeView";
/// By it a drop area tells a table of features from any other source of a drag.
inline constexpr const char *TableView = "tesseraTableView";

} // namespace Plugin::Tessera::ObjectNames
