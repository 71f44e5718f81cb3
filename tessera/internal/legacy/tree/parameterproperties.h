// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Keys under which a parameter node keeps its texts.
namespace ParameterProperties {

inline constexpr const char *Unit = "Unit";
inline constexpr const char *Description = "Description";
inline constexpr const char *Tooltip = "Tooltip";
inline constexpr const char *DocuUrl = "DocuURL";
inline constexpr const char *DisplayName = "DisplayName";
inline constexpr const char *Representation = "Representation";

} // namespace ParameterProperties
