// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "logview.h"

#include "logmodel.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace Viewer {

LogView::LogView(QWidget *parent)
    : QTreeView(parent)
    , m_model(new LogModel(this))
{
    setObjectName(QStringLiteral("logView"));
    setAccessibleName(tr("Log"));
    setModel(m_model);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(true);
    const QFontMetrics metrics(font());
    header()->resizeSection(LogModel::Time,
                            metrics.horizontalAdvance(QStringLiteral("00:00:00.0000")) + 16);
    header()->resizeSection(LogModel::Level,
                            metrics.horizontalAdvance(QStringLiteral("Information")) + 24);
    header()->resizeSection(LogModel::Category, metrics.averageCharWidth() * 42);

    auto *copyAction = new QAction(tr("&Copy"), this);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &LogView::copy);
    auto *clearAction = new QAction(tr("C&lear"), this);
    connect(clearAction, &QAction::triggered, m_model, &LogModel::clear);
    addActions({copyAction, clearAction});
    setContextMenuPolicy(Qt::ActionsContextMenu);

    connect(m_model, &LogModel::rowsAboutToBeInserted, this, &LogView::rememberPosition);
    connect(m_model, &LogModel::rowsInserted, this, &LogView::followNewest);
    scrollToBottom();
}

QSize LogView::sizeHint() const
{
    return {QTreeView::sizeHint().width(), fontMetrics().lineSpacing() * 7};
}

void LogView::copy() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    if (rows.isEmpty()) {
        for (int row = 0; row < m_model->rowCount(); ++row) {
            lines.append(m_model->line(row));
        }
    }
    for (const QModelIndex &index : qAsConst(rows)) {
        lines.append(m_model->line(index.row()));
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void LogView::rememberPosition()
{
    m_atEnd = verticalScrollBar()->value() >= verticalScrollBar()->maximum();
}

void LogView::followNewest()
{
    if (m_atEnd) {
        scrollToBottom();
    }
}

} // namespace Viewer
