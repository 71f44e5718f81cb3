// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTreeView>

namespace Viewer {

class LogModel;

/// The Log dock: entries as a list that follows the newest one while it stands at its end.
/// Copy (the usual key or the context menu) takes the selected entries as lines.
class LogView final : public QTreeView
{
    Q_OBJECT

public:
    explicit LogView(QWidget *parent = nullptr);

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Puts the selected entries, or all where none is selected, onto the clipboard.
    void copy() const;

private:
    void rememberPosition();
    void followNewest();

    LogModel *m_model; // by parent
    bool m_atEnd = true;
};

} // namespace Viewer
