// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class FeatureTreeItem;
class QMimeData;

/// Puts the path of the item's parameter into `payload`, in UTF-8, so that a drop knows the
/// feature. Does nothing for an item without a parameter; both may be null.
void addParameterPath(QMimeData *payload, const FeatureTreeItem *item);
