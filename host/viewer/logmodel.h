// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <host/framework/logentry.h>

#include <QAbstractTableModel>
#include <QList>

namespace Viewer {

/// The entries of the log as a table: time, level, category, text; oldest first.
class LogModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Level, Category, Message, ColumnCount };

    /// Starts with what the log holds and follows it.
    explicit LogModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /// The entry as one line of text.
    QString line(int row) const;
    /// Empties the table; the log itself keeps its entries.
    void clear();

private:
    void append(const Host::LogEntry &entry);

    QList<Host::LogEntry> m_entries;
};

} // namespace Viewer
