// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "itemeditorkind.h"

class FeatureTreeDelegate;
class FeatureTreeINodeItem;
class QWidget;

/// A set of kinds, one bit each.
template<typename... Kinds> constexpr quint32 kindSet(Kinds... kinds)
{
    return (0U | ... | (1U << static_cast<quint32>(kinds)));
}

/// How one sort of value gets its editor. A new editor joins the delegate by a row of the table in
/// itemeditortable.cpp.
struct ItemEditorRow
{
    quint32 kinds; ///< a `kindSet` of `ItemEditorKind`s
    /// Narrows the row down further, for instance by representation; null for all of the kinds.
    /// What the parameter library throws comes out.
    bool (*suits)(const FeatureTreeINodeItem &item);
    /// Makes the editor and connects the signal with which it commits to the delegate's
    /// `emitCommitData`. Null where the parameter is not of the class that the kind promises.
    QWidget *(*create)(const FeatureTreeINodeItem &item, const FeatureTreeDelegate &delegate,
                       QWidget *parent);
    /// A plain text editor takes the place of one that cannot be made.
    bool fallsBackToText;
};

/// The first row that suits `item`; null where the value is edited as plain text.
const ItemEditorRow *itemEditorRowFor(const FeatureTreeINodeItem &item);
