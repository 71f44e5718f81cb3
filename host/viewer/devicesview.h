// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QAction;
class QTreeView;

namespace Viewer {

class SourceModel;
class SourceSession;

/// The Devices dock: the list of sources with Open and Close. A double click or Enter opens a
/// closed source and activates an open one.
class DevicesView final : public QWidget
{
    Q_OBJECT

public:
    /// `session` is borrowed and outlives the view.
    explicit DevicesView(SourceSession *session, QWidget *parent = nullptr);

    /// The actions Open and Close for the selected source, for a menu.
    QList<QAction *> sourceActions() const;

private:
    int selectedSource() const;
    void activate(const QModelIndex &index);
    void updateActions();
    void selectActive();

    SourceSession *m_session; // borrowed
    SourceModel *m_model; // by parent
    QTreeView *m_list; // by parent
    QAction *m_openAction; // by parent
    QAction *m_closeAction; // by parent
};

} // namespace Viewer
