// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreeitem.h"

#include "itemeditorkind.h"

#include "plugin/constants/itemroles.h"

#include <QApplication>
#include <QBrush>
#include <QFontMetricsF>
#include <QPalette>
#include <QSize>

#include <algorithm>
#include <utility>

FeatureTreeItem::FeatureTreeItem(const QString &text, IFeatureTreeModelExtension *model,
                                 const QString &fullName, FeatureTreeItem *parentItem, int depth)
    : QObject(parentItem)
    , m_text(text)
    , m_fullName(fullName)
    , m_parentItem(parentItem)
    , m_model(model)
    , m_editorKind(ItemEditorKind::NoEditor)
    , m_depth(depth)
{
}

FeatureTreeItem::~FeatureTreeItem()
{
    deleteChildren();
    if (m_parentItem) {
        m_parentItem->m_children.removeOne(this);
    }
}

void FeatureTreeItem::clear()
{
    deleteChildren();
}

// Front to back, as QObject searches its list of children from the front; out of an empty list, so
// that no child searches this one as well.
void FeatureTreeItem::deleteChildren()
{
    const QList<FeatureTreeItem *> children = std::exchange(m_children, {});
    qDeleteAll(children);
}

int FeatureTreeItem::childCount()
{
    return m_children.size();
}

QVariant FeatureTreeItem::data(int column, int role) const
{
    if (column == 0) {
        switch (role) {
        case Qt::DisplayRole:
            return text();
        case Qt::ForegroundRole:
            return foreground();
        case Qt::SizeHintRole:
            return QSize(0, static_cast<int>(QFontMetricsF(QApplication::font()).height() + 10.0));
        default:
            break;
        }
    }
    if (column == 1) {
        switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return {};
        case Qt::ForegroundRole:
            return foreground();
        default:
            break;
        }
    }
    return roleData(role);
}

QVariant FeatureTreeItem::roleData(int role) const
{
    switch (role) {
    case Qt::ToolTipRole:
        return toolTip();
    case ShortNameRole:
    case FullNameRole:
        return fullName();
    case IsCategoryRole:
        return m_isCategory;
    case VisibilityRole:
        return m_visibility;
    case UniqueKeyRole:
        return qHash(fullName());
    case SpanColumnsRole:
        return m_isCollectionTop;
    case NoElideRole:
        return m_noElide;
    case IsAvailableRole:
        return isVisibleAt(2);
    case IsFavoriteMatchRole:
        return m_isFavoriteMatch;
    case IsSearchMatchRole:
        return m_isSearchMatch;
    case HasShownFeatureRole:
        return hasShownFeature();
    case DepthRole:
        return m_depth;
    case RelativePathRole:
        return relativePath().toString();
    default:
        return {};
    }
}

void FeatureTreeItem::setData(int column, const QVariant &value, int role)
{
    Q_UNUSED(column)
    Q_UNUSED(value)
    Q_UNUSED(role)
}

int FeatureTreeItem::row() const
{
    if (!m_parentItem) {
        return 0;
    }
    const QList<FeatureTreeItem *> &siblings = m_parentItem->m_children;
    if (siblings.value(m_lastRow) != this) {
        m_lastRow = siblings.indexOf(const_cast<FeatureTreeItem *>(this));
    }
    return m_lastRow;
}

const FeatureTreeItem *FeatureTreeItem::parent() const
{
    return m_parentItem;
}

FeatureTreeItem *FeatureTreeItem::parent()
{
    return m_parentItem;
}

const IFeatureTreeModelExtension *FeatureTreeItem::model() const
{
    return m_model;
}

IFeatureTreeModelExtension *FeatureTreeItem::model()
{
    return m_model;
}

int FeatureTreeItem::editorKind() const
{
    return m_editorKind;
}

bool FeatureTreeItem::hasChildren() const
{
    return !m_children.isEmpty();
}

bool FeatureTreeItem::isVisibleAt(int level) const
{
    return m_visibility <= level;
}

int FeatureTreeItem::accessMode() const
{
    return 1;
}

int FeatureTreeItem::visibility() const
{
    return m_visibility;
}

void FeatureTreeItem::setVisibility(int visibility)
{
    m_visibility = visibility;
}

Qt::ItemFlags FeatureTreeItem::flags(int column) const
{
    if (column == 0) {
        return Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled
            | Qt::ItemIsEnabled;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled;
    if (column == 1) {
        const int access = accessMode();
        flags.setFlag(Qt::ItemIsEditable,
                      hasInlineEditor(editorKind()) || access == 2 || access == 4);
    }
    return flags;
}

QVariant FeatureTreeItem::foreground() const
{
    return disabledForeground();
}

QVariant FeatureTreeItem::disabledForeground()
{
    static const QBrush brush = QPalette().brush(QPalette::Disabled, QPalette::Text);
    return brush;
}

void FeatureTreeItem::appendChild(FeatureTreeItem *item)
{
    insertChild(item, m_children.size());
}

void FeatureTreeItem::insertChild(FeatureTreeItem *item, int row)
{
    item->setParent(this);
    item->m_parentItem = this;
    item->m_lastRow = row;
    m_children.insert(row, item);
}

FeatureTreeItem *FeatureTreeItem::child(int row) const
{
    return m_children.value(row);
}

FeatureTreeItem *FeatureTreeItem::takeChild(int row)
{
    if (row < 0 || row >= m_children.size()) {
        return nullptr;
    }
    FeatureTreeItem *item = m_children.takeAt(row);
    item->m_parentItem = nullptr;
    item->setParent(nullptr);
    return item;
}

void FeatureTreeItem::removeChild(int row)
{
    delete takeChild(row);
}

void FeatureTreeItem::setText(const QString &text)
{
    m_text = text;
}

QString FeatureTreeItem::text() const
{
    return m_text;
}

QString FeatureTreeItem::fullName() const
{
    return m_fullName;
}

QStringView FeatureTreeItem::relativePath() const
{
    const int star = m_fullName.indexOf(QLatin1Char('*'));
    const bool isTop =
        star >= 0 && m_fullName.indexOf(QLatin1String("*Root"), star, Qt::CaseInsensitive) >= 0;
    const int end = isTop ? star : m_fullName.indexOf(QLatin1Char('/'));
    return QStringView(m_fullName).mid(end + 1);
}

int FeatureTreeItem::depth() const
{
    return m_depth;
}

void FeatureTreeItem::setToolTip(const QString &toolTip)
{
    m_toolTip = std::make_unique<QString>(toolTip);
}

QString FeatureTreeItem::toolTip() const
{
    return m_toolTip ? *m_toolTip : QString();
}

void FeatureTreeItem::setStatusText(const QString &statusText)
{
    m_statusText = std::make_unique<QString>(statusText);
}

QString FeatureTreeItem::statusText() const
{
    return m_statusText ? *m_statusText : QString();
}

void FeatureTreeItem::setIsCollectionTop(bool isCollectionTop)
{
    m_isCollectionTop = isCollectionTop;
}

void FeatureTreeItem::setNoElide(bool noElide)
{
    m_noElide = noElide;
}

void FeatureTreeItem::setFavoriteMatch(bool match)
{
    m_isFavoriteMatch = match;
}

void FeatureTreeItem::setSearchMatch(bool match)
{
    m_isSearchMatch = match;
}

int FeatureTreeItem::columnCount() const
{
    return m_isCategory ? 1 : 2;
}

FeatureTreeItem *FeatureTreeItem::findByFullName(const QString &name)
{
    if (m_fullName == name) {
        return this;
    }
    const int count = childCount();
    for (int row = 0; row < count; ++row) {
        if (FeatureTreeItem *found = child(row)->findByFullName(name)) {
            return found;
        }
    }
    return nullptr;
}

FeatureTreeItem *FeatureTreeItem::findByRole(int role, const QVariant &value)
{
    if (data(0, role) == value) {
        return this;
    }
    const int count = childCount();
    for (int row = 0; row < count; ++row) {
        if (FeatureTreeItem *found = child(row)->findByRole(role, value)) {
            return found;
        }
    }
    return nullptr;
}

bool FeatureTreeItem::containsItem(const FeatureTreeItem *item)
{
    if (item == this) {
        return true;
    }
    const int count = childCount();
    for (int row = 0; row < count; ++row) {
        if (child(row)->containsItem(item)) {
            return true;
        }
    }
    return false;
}

bool FeatureTreeItem::hasShownFeature() const
{
    return std::any_of(m_children.cbegin(), m_children.cend(), [](const FeatureTreeItem *item) {
        return !item->data(0, IsCategoryRole).toBool() && item->data(0, IsAvailableRole).toBool();
    });
}

void FeatureTreeItem::setEditorKind(int editorKind)
{
    m_editorKind = editorKind;
}

void FeatureTreeItem::setIsCategory(bool isCategory)
{
    m_isCategory = isCategory;
}

bool FeatureTreeItem::childrenLoaded() const
{
    return m_childrenLoaded;
}

void FeatureTreeItem::setChildrenLoaded(bool loaded)
{
    m_childrenLoaded = loaded;
}
