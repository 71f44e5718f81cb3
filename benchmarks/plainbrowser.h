// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QStyledItemDelegate>
#include <QVector>
#include <QWidget>

class QTableView;
class QTreeView;

/// Rows of texts, of which some are marked. What a view costs at the least.
class PlainModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    void setNames(const QStringList &names);
    void setValue(int row, const QString &value);
    /// Marks the rows whose names have `text` in them.
    void mark(const QString &text);

private:
    QStringList m_names;
    QStringList m_values;
    QVector<bool> m_marks;
};

/// Makes the widgets of a browser's editors from Qt's own, and shows numbers in them.
class PlainDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `editors` are classes of a browser's editors in the order of the rows.
    explicit PlainDelegate(QVector<QByteArray> editors, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;

private:
    QVector<QByteArray> m_editors;
};

/// A tree beside a table with Qt's own means, of the size, in the white frame and with the cell
/// widgets of a browser, and told of as many changes: the floor that a browser is measured against.
class PlainBrowser final : public QWidget
{
    Q_OBJECT

public:
    /// `features` features, fifty in a category; a cell widget for each of `editors`, classes of a
    /// browser's editors in the order of the rows, empty for none.
    PlainBrowser(int features, QVector<QByteArray> editors);

    void select(int category);
    void mark(const QString &text);
    void setValue(int row, const QString &value);

private:
    PlainModel m_categories;
    PlainModel m_rows;
    QVector<PlainModel *> m_all; // by parent; what a search goes through
    QVector<QByteArray> m_editors;
    QTreeView *m_tree = nullptr; // by parent
    QTableView *m_table = nullptr; // by parent
};
