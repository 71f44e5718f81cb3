// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "logmodel.h"

#include <host/framework/log.h>

#include <algorithm>
#include <iterator>

namespace Viewer {

LogModel::LogModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    const auto entries = Host::Log::instance().entries();
    m_entries.reserve(entries.size());
    std::copy(entries.cbegin(), entries.cend(), std::back_inserter(m_entries));
    connect(&Host::Log::instance(), &Host::Log::entryAdded, this, &LogModel::append);
}

int LogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

int LogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LogModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return QVariant();
    }
    const Host::LogEntry &entry = m_entries.at(index.row());
    if (role == Qt::ToolTipRole) {
        return Host::toLine(entry);
    }
    if (role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (index.column()) {
    case Time:
        return entry.time.toString(QStringLiteral("HH:mm:ss"));
    case Level:
        return Host::levelText(entry.level);
    case Category:
        return entry.category;
    default:
        return entry.text;
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case Time:
        return tr("Time");
    case Level:
        return tr("Level");
    case Category:
        return tr("Category");
    default:
        return tr("Text");
    }
}

QString LogModel::line(int row) const
{
    return Host::toLine(m_entries.at(row));
}

void LogModel::clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

void LogModel::append(const Host::LogEntry &entry)
{
    // The log drops its oldest entries; so does its picture.
    if (m_entries.size() >= Host::Log::capacity) {
        beginRemoveRows(QModelIndex(), 0, 0);
        m_entries.removeFirst();
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), m_entries.size(), m_entries.size());
    m_entries.append(entry);
    endInsertRows();
}

} // namespace Viewer
