// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>
#include <QStringList>

class FeatureTreeItem;
class IFeatureTreeModelExtension;

/// The keys of the items from the top row down to `item`; empty for null.
QStringList categoryPath(const FeatureTreeItem *item);

/// The last item along `path` that `model` has; invalid when it lacks the first.
QModelIndex indexAlong(const QStringList &path, IFeatureTreeModelExtension &model);
