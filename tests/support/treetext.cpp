// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/treetext.h"

#include <QAbstractItemModel>

namespace Tests {

QString treeText(const QAbstractItemModel &model, const QModelIndex &parent)
{
    int level = 0;
    for (QModelIndex above = parent; above.isValid(); above = above.parent()) {
        ++level;
    }
    QString text;
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString value = index.siblingAtColumn(1).data().toString();
        text += QString(2 * level, QLatin1Char(' ')) + index.data().toString();
        text += value.isEmpty() ? QStringLiteral("\n") : QStringLiteral(": %1\n").arg(value);
        text += treeText(model, index);
    }
    return text;
}

QModelIndex findRow(const QAbstractItemModel &model, const QString &text, int column,
                    const QModelIndex &parent)
{
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data().toString() == text) {
            return index.siblingAtColumn(column);
        }
        const QModelIndex below = findRow(model, text, column, index);
        if (below.isValid()) {
            return below;
        }
    }
    return {};
}

} // namespace Tests
