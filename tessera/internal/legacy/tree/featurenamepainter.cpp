// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featurenamepainter.h"

#include "plugin/constants/itemroles.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

const QColor searchColor(0xFF, 0xA7, 0x00);
const QColor favoriteColor(0xFF, 0xD8, 0x93);
const QColor hoverColor(229, 243, 255, 220);

} // namespace

FeatureNamePainter::FeatureNamePainter(const QStyleOptionViewItem &option, const QModelIndex &index,
                                       QString searchText, Place place)
    : m_option(option)
    , m_index(index)
    , m_searchText(std::move(searchText))
    , m_style(option.widget ? option.widget->style() : QApplication::style())
    , m_textRect(m_style->subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget))
    , m_rowRect(option.rect)
    , m_place(place)
{
    if (m_option.state.testFlag(QStyle::State_Selected)) {
        m_option.font.setWeight(QFont::Bold);
        m_option.fontMetrics = QFontMetrics(m_option.font);
    }
    m_drawnText = has(NoElideRole)
        ? m_option.text
        : m_option.fontMetrics.elidedText(m_option.text, Qt::ElideRight, m_textRect.width() - 20);
    placeRects();
}

void FeatureNamePainter::placeRects()
{
    const int margin = m_style->pixelMetric(QStyle::PM_HeaderMargin, &m_option, m_option.widget);
    switch (m_place) {
    case Place::TableBesideTree:
        m_textRect.adjust(margin + 7, 0, -2, 0);
        m_rowRect.adjust(6, 0, -2, 0);
        break;
    case Place::TableOfItsOwn:
        m_rowRect.adjust(-2, 0, -2, 0);
        break;
    case Place::WholeTree:
    case Place::FlatTree:
        placeInTree(margin - 3);
        break;
    }
}

// Rows below the second level start at the left edge unless the whole tree is shown.
void FeatureNamePainter::placeInTree(int margin)
{
    if (m_index.data(DepthRole).toInt() < 2 || m_place == Place::WholeTree) {
        m_textRect.adjust(margin, 0, 10, 0);
        return;
    }
    const int indent =
        m_style->pixelMetric(QStyle::PM_TreeViewIndentation, &m_option, m_option.widget);
    const int disclosure =
        m_style->subElementRect(QStyle::SE_TreeViewDisclosureItem, &m_option, m_option.widget)
            .width();
    m_textRect.adjust(margin - indent, 0, indent + 10, 0);
    m_rowRect.adjust(-(indent + disclosure), 0, indent + disclosure, 0);
}

void FeatureNamePainter::paint(QPainter &painter) const
{
    painter.save();
    painter.setFont(m_option.font);
    if (has(IsCategoryRole)) {
        paintCategoryBackground(painter);
    } else {
        paintFeatureBackground(painter);
    }
    if (m_option.state.testFlag(QStyle::State_MouseOver)) {
        painter.fillRect(m_rowRect, hoverColor);
    }
    if (has(HasShownFeatureRole)) {
        paintArrow(painter);
    }
    paintText(painter);
    paintFocusFrame(painter);
    painter.restore();
}

void FeatureNamePainter::paintCategoryBackground(QPainter &painter) const
{
    if (has(IsSearchMatchRole)) {
        painter.fillRect(m_rowRect, searchColor);
    } else if (has(IsFavoriteMatchRole)) {
        painter.fillRect(m_rowRect, favoriteColor);
    } else {
        painter.fillRect(m_rowRect, m_option.palette.window());
    }
}

void FeatureNamePainter::paintFeatureBackground(QPainter &painter) const
{
    const QBrush plain = m_option.palette.window();
    painter.fillRect(m_rowRect, has(IsFavoriteMatchRole) ? QBrush(favoriteColor) : plain);
    if (!has(IsSearchMatchRole) || m_searchText.isEmpty()) {
        return;
    }
    if (m_option.text.compare(m_searchText, Qt::CaseInsensitive) == 0) {
        painter.fillRect(m_rowRect, searchColor);
    } else if (matches(m_option.text)) {
        paintHits(painter);
    } else if (matches(m_index.data(RelativePathRole).toString())) {
        painter.fillRect(m_rowRect, plain);
        painter.setPen(QPen(searchColor, 3));
        painter.drawRect(m_rowRect.adjusted(2, 2, -2, -2));
    }
}

void FeatureNamePainter::paintHits(QPainter &painter) const
{
    const int drawn = fullyDrawnLength();
    const int size = m_searchText.size();
    const auto widthTo = [this](int length) {
        return m_option.fontMetrics.horizontalAdvance(m_drawnText.left(length));
    };
    const auto nextHit = [this](int from) {
        return m_option.text.indexOf(m_searchText, from, Qt::CaseInsensitive);
    };
    for (int hit = nextHit(0); hit >= 0 && hit < drawn; hit = nextHit(hit + size)) {
        const int left = widthTo(hit);
        const int right = widthTo(std::min(hit + size, drawn));
        painter.fillRect(m_textRect.left() + left, m_rowRect.top(), right - left,
                         m_rowRect.height(), searchColor);
    }
}

// How much of the text is drawn as it is, before the mark of an elision.
int FeatureNamePainter::fullyDrawnLength() const
{
    const auto [drawn, whole] = std::mismatch(m_drawnText.cbegin(), m_drawnText.cend(),
                                              m_option.text.cbegin(), m_option.text.cend());
    Q_UNUSED(whole)
    return static_cast<int>(drawn - m_drawnText.cbegin());
}

void FeatureNamePainter::paintArrow(QPainter &painter) const
{
    QStyleOptionViewItem arrow(m_option);
    const int width = m_style->pixelMetric(QStyle::PM_IndicatorWidth, &m_option, m_option.widget);
    arrow.rect.setLeft(m_option.rect.right() - width + 1);
    arrow.state.setFlag(QStyle::State_Open, false);
    arrow.state.setFlag(QStyle::State_Children);
    m_style->drawPrimitive(QStyle::PE_IndicatorBranch, &arrow, &painter, m_option.widget);
}

void FeatureNamePainter::paintText(QPainter &painter) const
{
    const QVariant foreground = m_index.data(Qt::ForegroundRole);
    painter.setPen(foreground.isValid() ? foreground.value<QBrush>().color()
                                        : m_option.palette.color(QPalette::Text));
    painter.drawText(m_textRect, Qt::AlignVCenter, m_drawnText);
}

// The selection shows as bold text only, so the frame is what tells where the keyboard is.
void FeatureNamePainter::paintFocusFrame(QPainter &painter) const
{
    if (!m_option.state.testFlag(QStyle::State_HasFocus)) {
        return;
    }
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(m_option);
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    focus.backgroundColor = m_option.palette.color(QPalette::Window);
    // The view's own highlight is transparent.
    focus.palette.setBrush(QPalette::Highlight, QApplication::palette().highlight());
    m_style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, m_option.widget);
}

bool FeatureNamePainter::has(int role) const
{
    return m_index.data(role).toBool();
}

bool FeatureNamePainter::matches(const QString &text) const
{
    return text.contains(m_searchText, Qt::CaseInsensitive);
}
