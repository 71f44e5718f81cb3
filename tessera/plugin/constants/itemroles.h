// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Qt>

/// Item data roles beyond Qt's own. Items, models, views and delegate exchange the numbers.
enum ItemRole : int {
    ShortNameRole = 257, ///< last component of the path
    TooltipTextRole = 258, ///< the node's own short description
    DescriptionRole = 259,
    DocuUrlRole = 260,
    IsCategoryRole = 261,
    VisibilityRole = 262, ///< a `GenApi::EVisibility`
    UniqueKeyRole = 266, ///< never equal for two rows
    SpanColumnsRole = 268, ///< the row is drawn over all columns
    NoElideRole = 269, ///< the text is drawn whole
    IsAvailableRole = 270, ///< shown at level Guru
    IsFavoriteMatchRole = 271, ///< marked by the use case
    IsSearchMatchRole = 272, ///< marked by the search
    HasShownFeatureRole = 273, ///< a child is a feature that is shown at level Guru
    DepthRole = 274, ///< 1 for a top row
    RelativePathRole = 287, ///< path without the name of the tree
    FullNameRole = 288, ///< key of the item
};

static_assert(ShortNameRole == Qt::UserRole + 1, "Roles below are Qt's own");
