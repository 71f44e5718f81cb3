// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>

namespace Viewer {

class SourceSession;

/// The sources as a table for the Devices dock: name, kind, state. The active one is bold.
class SourceModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Kind, State, ColumnCount };

    /// `session` is borrowed and outlives the model.
    explicit SourceModel(SourceSession *session, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    void announce(int index);

    SourceSession *m_session; // borrowed
};

} // namespace Viewer
