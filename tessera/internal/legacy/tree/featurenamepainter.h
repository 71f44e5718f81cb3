// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>
#include <QStyleOptionViewItem>

class QPainter;

/// Paints the name of a feature or category with the marks of search and use case. Lives for one
/// cell. The colours of the marks are fixed.
class FeatureNamePainter final
{
public:
    /// The sort of view that the name stands in.
    enum class Place {
        WholeTree,
        FlatTree, ///< rows below the second level stand at the left edge
        TableBesideTree,
        TableOfItsOwn,
    };

    /// `option` is complete, text included. `searchText` is trimmed.
    FeatureNamePainter(const QStyleOptionViewItem &option, const QModelIndex &index,
                       QString searchText, Place place);

    void paint(QPainter &painter) const;

private:
    void paintCategoryBackground(QPainter &painter) const;
    void paintFeatureBackground(QPainter &painter) const;
    void paintHits(QPainter &painter) const;
    void paintArrow(QPainter &painter) const;
    void paintText(QPainter &painter) const;
    void paintFocusFrame(QPainter &painter) const;
    void placeRects();
    void placeInTree(int margin);
    int fullyDrawnLength() const;
    bool has(int role) const;
    bool matches(const QString &text) const;

    QStyleOptionViewItem m_option;
    QModelIndex m_index;
    QString m_searchText;
    QStyle *m_style = nullptr; // borrowed
    QString m_drawnText; // elided where it does not fit
    QRect m_textRect;
    QRect m_rowRect;
    Place m_place = Place::WholeTree;
};
