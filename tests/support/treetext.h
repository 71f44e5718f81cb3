// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>
#include <QString>

class QAbstractItemModel;

namespace Tests {

/// The rows of a model as indented text, one line a row: "name" or "name: value". Loads what is
/// loaded on demand.
QString treeText(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex());

/// The index in `column` of the first row below `parent`, at any depth, whose text in column 0 is
/// `text`; invalid for none.
QModelIndex findRow(const QAbstractItemModel &model, const QString &text, int column = 0,
                    const QModelIndex &parent = QModelIndex());

} // namespace Tests
