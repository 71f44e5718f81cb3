// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QSplitter;

/// The width of the tree beside the table. A width that comes before the splitter has a size is
/// kept until it is shown.
class SplitterColumns final : public QObject
{
    Q_OBJECT

public:
    /// `splitter` holds tree, line and table.
    explicit SplitterColumns(QSplitter *splitter);

    /// Pixels; negative ones and ones that leave no room for the table are ignored.
    void setTreeWidth(int width);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool apply(int width);

    QSplitter *m_splitter = nullptr; // parent
    int m_pendingWidth = -1;
};
