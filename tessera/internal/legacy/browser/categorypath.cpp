// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "categorypath.h"

#include "internal/legacy/tree/featuretreeitem.h"
#include "internal/legacy/tree/featuretreemodelextension.h"
#include "plugin/constants/itemroles.h"

QStringList categoryPath(const FeatureTreeItem *item)
{
    QStringList path;
    for (; item && item->depth() > 0; item = item->parent()) {
        path.prepend(item->data(0, FullNameRole).toString());
    }
    return path;
}

QModelIndex indexAlong(const QStringList &path, IFeatureTreeModelExtension &model)
{
    QModelIndex last;
    for (const QString &name : path) {
        const QModelIndex index = model.indexOfName(name, nullptr, 0);
        if (!index.isValid()) {
            break;
        }
        last = index;
    }
    return last;
}
