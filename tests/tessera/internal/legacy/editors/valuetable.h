// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "internal/legacy/editors/parameteranddata.h"

#include <QAbstractTableModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVector>

namespace ParameterCollection {
class IParameterCollection;
}

/// Rows of parameters, name and value. Keeps the latest snapshot of each and writes by kind, unless
/// the value is what the parameter has.
class ValueModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    ValueModel(const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
               const QStringList &names);

    const ParameterAndData &pair(int row) const;
    /// Writes that reached a parameter, refused ones included.
    int writes() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void write(const QSharedPointer<ParameterCollection::IParameter> &parameter,
               const QVariant &value);

    QVector<ParameterAndData> m_pairs;
    int m_writes = 0;
};

/// Gives each value the editor of its kind and carries values to and fro.
class ValueDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    ValueDelegate(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                  QObject *parent);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

private:
    QWidget *makeFloatEditor(QWidget *parent, const ParameterAndData &pair) const;
    void emitCommitData();

    QSharedPointer<ParameterCollection::IParameterCollection> m_collection;
};

/// A table with an open editor for each value.
class ValueTable final : public QTableView
{
    Q_OBJECT

public:
    ValueTable(const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
               const QStringList &names);

    ValueModel &values();
    QWidget *editor(int row) const;
    template<typename Widget> Widget *part(int row) const
    {
        auto *self = qobject_cast<Widget *>(editor(row));
        return self ? self : editor(row)->findChild<Widget *>();
    }
    /// Shows the table and gives it the focus.
    bool open();

private:
    ValueModel m_model;
};
