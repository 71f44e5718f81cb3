// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/// The word under which the tool tips of a tree are translated, from the first component of
/// `fullName`, such as "CameraDevice" for "@CameraDevice/Width". "Invalid" for an unknown tree.
QString toolTipContext(const QString &fullName);

/// The translated tool tip of the feature `shortName` in `context`, or `fallback` where there is no
/// translation.
QString toolTipDetail(const QString &context, const QString &shortName, const QString &fallback);

/// `text` as rich text with each occurrence of the trimmed `searchText` in the colour of search
/// marks; case does not matter. Unchanged when there is nothing to search for.
QString highlighted(const QString &text, const QString &searchText);
