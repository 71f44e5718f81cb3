// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Formats of what is dragged.
namespace Plugin::Tessera::MimeTypes {

/// The full path of one parameter in UTF-8, without a line end.
inline constexpr const char *ParameterPath = "text/plain";

} // namespace Plugin::Tessera::MimeTypes
