// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

class FeatureTreeItem;

/// The items below `root` whose full names are among `names`, in the order of the tree. Each
/// takes one occurrence of its name out of `names`; the search ends with the last of them.
QList<FeatureTreeItem *> takeNamedItems(const FeatureTreeItem &root, QStringList &names);
