// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// The display names of all features that this process has seen, by full name. Kept in the settings,
// so that a feature can be named before a tree of this run has shown it. May be used from every
// thread.

/// Reads the entries of the settings into the cache.
void loadDisplayNameCache();

/// Writes the cache to the settings. Entries with ":" or ";" in them cannot be written and are left
/// out.
void saveDisplayNameCache();

/// Adds an entry; one that exists already stays as it is.
void cacheDisplayName(const QString &fullName, const QString &displayName);

/// The name to show for `fullName`, or an empty text.
QString cachedDisplayName(const QString &fullName);
