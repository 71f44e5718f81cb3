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
#include <iterator>
#include <numeric>

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
    const auto fitTo = [this](int column, const QString &text) {
        header()->resizeSection(column,
                                fontMetrics().horizontalAdvance(text + QLatin1String("xxx")));
    };
    fitTo(LogModel::Time, QStringLiteral("00:00:00"));
    fitTo(LogModel::Level, QStringLiteral("Information"));
    fitTo(LogModel::Category, QStringLiteral("vantrel.viewer"));

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
    QVector<int> rows;
    const QModelIndexList selected = selectionModel()->selectedRows();
    if (selected.isEmpty()) {
        rows.resize(m_model->rowCount());
        std::iota(rows.begin(), rows.end(), 0);
    } else {
        rows.resize(selected.size());
        std::transform(selected.cbegin(), selected.cend(), rows.begin(),
                       [](const QModelIndex &index) { return index.row(); });
        std::sort(rows.begin(), rows.end());
    }
    QStringList lines;
    lines.reserve(rows.size());
    std::transform(rows.cbegin(), rows.cend(), std::back_inserter(lines),
                   [this](int row) { return m_model->line(row); });
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
