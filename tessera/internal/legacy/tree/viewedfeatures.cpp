// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "viewedfeatures.h"

#include "featuretreeinodeitem.h"
#include "featuretreeproxymodel.h"

#include "plugin/contract/viewer/stylehelper.h"

#include <QAbstractItemView>

ViewedFeatures::ViewedFeatures(const QAbstractItemModel *&lastModel)
    : m_lastModel(lastModel)
{
}

void ViewedFeatures::setModel(QAbstractItemModel *model)
{
    m_model = model;
    // The interface is no QObject.
    m_extension = dynamic_cast<IFeatureTreeModelExtension *>(model); // clazy:exclude=unneeded-cast
}

IFeatureTreeModelExtension *ViewedFeatures::extension() const
{
    return m_model ? m_extension : nullptr;
}

FeatureTreeItem *ViewedFeatures::item(const QModelIndex &index) const
{
    return extension() ? extension()->itemFromIndex(index) : nullptr;
}

FeatureTreeINodeItem *ViewedFeatures::feature(const QModelIndex &index) const
{
    return qobject_cast<FeatureTreeINodeItem *>(item(index));
}

bool ViewedFeatures::isRepeating(const QModelIndex &index) const
{
    const FeatureTreeINodeItem *shown = feature(index);
    return shown && shown->isRepeating();
}

int ViewedFeatures::level() const
{
    return m_level;
}

void ViewedFeatures::setLevel(GenApi::EVisibility level)
{
    if (level == m_level && m_model == m_lastModel) {
        return;
    }
    m_level = level;
    m_lastModel = m_model;
    if (extension()) {
        extension()->pollNodes({});
    }
}

bool ViewedFeatures::wantsEditor(const QModelIndex &value) const
{
    const FeatureTreeINodeItem *item = feature(value);
    return item && item->hasInlineEditor() && item->isVisibleAt(m_level);
}

// The search for the item comes last, as it may go over a whole tree.
bool ViewedFeatures::mayOpenEditor(const QModelIndex &value) const
{
    FeatureTreeINodeItem *item = feature(value);
    return item && item->hasInlineEditor() && item->visibility() <= m_level
        && item->accessMode() >= 2 && extension()->indexOfItem(item, nullptr, 1).isValid();
}

void dressFeatureView(QAbstractItemView &view)
{
    QPalette colors = view.palette();
    colors.setBrush(QPalette::Disabled, QPalette::Base,
                    colors.brush(QPalette::Active, QPalette::Base));
    view.setPalette(colors);
    QFont font = view.font();
    font.setFamily(QStringLiteral("Segoe UI"));
    font.setPixelSize(CStyleHelper::computePixelFontSize(12));
    view.setFont(font);
    view.viewport()->setAttribute(Qt::WA_Hover);
}

FeatureTreeProxyModel *makeFeatureProxy(QAbstractItemModel *source, const QString *searchText,
                                        QObject *parent)
{
    auto *proxy = new FeatureTreeProxyModel(parent);
    source->setParent(proxy);
    proxy->setSourceModel(source);
    proxy->setDynamicSortFilter(false);
    proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy->setFilterKeyColumn(1);
    proxy->setSearchText(searchText);
    return proxy;
}
