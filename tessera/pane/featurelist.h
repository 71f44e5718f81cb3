// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parametername.h"

#include <QList>
#include <QVariantMap>

namespace Plugin::Tessera {

/// Features of a tab in the order of display.
using FeatureList = QList<ParameterCollection::ParameterName>;

/// The names of a list joined with ",". A comma inside a name is not escaped.
QString featureListText(const FeatureList &list);

/// The list of which that is the text; empty parts are dropped.
FeatureList featureListFromText(const QString &text);

/// Brings `list` up to date with the catalogue of basic features: what is in both keeps its place,
/// what is new comes at the end, what left the catalogue goes. Only the first entry of `catalogue`
/// counts; an empty one changes nothing.
FeatureList mergedWithCatalogue(const FeatureList &list, const QVariantMap &catalogue);

/// Moves an entry to another place; places outside the list change nothing.
void moveFeature(FeatureList &list, int from, int to);

} // namespace Plugin::Tessera
