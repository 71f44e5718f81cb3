// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "sourcemodel.h"

#include "sourcesession.h"

#include <QFont>

namespace Viewer {

SourceModel::SourceModel(SourceSession *session, QObject *parent)
    : QAbstractTableModel(parent)
    , m_session(session)
{
    connect(session, &SourceSession::changed, this, &SourceModel::announce);
}

int SourceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_session->count();
}

int SourceModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SourceModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return QVariant();
    }
    const bool active = index.row() == m_session->activeIndex();
    if (role == Qt::FontRole && active) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role == Qt::ToolTipRole) {
        return m_session->id(index.row());
    }
    if (role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (index.column()) {
    case Name:
        return m_session->displayName(index.row());
    case Kind:
        return m_session->kind(index.row());
    default:
        return active ? tr("active") : m_session->isOpen(index.row()) ? tr("open") : tr("closed");
    }
}

QVariant SourceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case Name:
        return tr("Device");
    case Kind:
        return tr("Kind");
    default:
        return tr("State");
    }
}

void SourceModel::announce(int index)
{
    if (index < 0) {
        beginResetModel();
        endResetModel();
        return;
    }
    Q_EMIT dataChanged(this->index(index, 0), this->index(index, ColumnCount - 1));
}

} // namespace Viewer
