// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "panecommands.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>

#include <algorithm>

namespace Viewer {

namespace {

// The number under which an item tells its full path to everybody who has only its model.
constexpr int fullNameRole = 288;

QModelIndex findPath(const QAbstractItemModel &model, const QString &fullName,
                     const QModelIndex &parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data(fullNameRole).toString() == fullName) {
            return index;
        }
        const QModelIndex below = findPath(model, fullName, index);
        if (below.isValid()) {
            return below;
        }
    }
    return QModelIndex();
}

// What the tree shows of the path: its own row or, where the tree leaves it out, the row that it
// stands below.
QModelIndex findInTree(const QAbstractItemModel &shown, const QString &fullName)
{
    const auto *filter = qobject_cast<const QAbstractProxyModel *>(&shown);
    if (!filter) {
        return findPath(shown, fullName);
    }
    QModelIndex index = findPath(*filter->sourceModel(), fullName);
    while (index.isValid() && !filter->mapFromSource(index).isValid()) {
        index = index.parent();
    }
    return filter->mapFromSource(index);
}

bool makeCurrent(QAbstractItemView *view, const QModelIndex &index)
{
    if (!view || !index.isValid()) {
        return false;
    }
    view->setCurrentIndex(index);
    view->scrollTo(index);
    return true;
}

} // namespace

PaneError::PaneError(const QString &message)
    : std::runtime_error(message.toStdString())
{
}

PaneCommands::PaneCommands(QMainWindow *window)
    : m_window(window)
    , m_pane(QStringLiteral("All"))
{
}

void PaneCommands::showPane(const QString &name)
{
    auto *dock = m_window->findChild<QDockWidget *>(QLatin1String("Tessera.Widget.") + name);
    if (!dock) {
        throw PaneError(QStringLiteral("there is no pane \"%1\"").arg(name));
    }
    m_pane = name;
    dock->show();
    dock->raise();
}

void PaneCommands::select(const QString &fullName)
{
    auto *tree = qobject_cast<QAbstractItemView *>(widget("treeView"));
    auto *table = qobject_cast<QAbstractItemView *>(widget("tesseraTableView"));
    const QModelIndex category = tree ? findInTree(*tree->model(), fullName) : QModelIndex();
    bool isShown = makeCurrent(tree, category) && category.data(fullNameRole) == fullName;
    // The table lists the features of the category that is now current.
    if (!isShown && table) {
        isShown = makeCurrent(table, findPath(*table->model(), fullName));
    }
    if (!isShown) {
        throw PaneError(QStringLiteral("the pane %1 shows no \"%2\"").arg(m_pane, fullName));
    }
}

void PaneCommands::search(const QString &text)
{
    auto *edit = qobject_cast<QLineEdit *>(widget("filterEdit"));
    if (!edit) {
        throw PaneError(QStringLiteral("the pane %1 has no search line").arg(m_pane));
    }
    edit->setText(text);
}

void PaneCommands::chooseUseCase(const QString &name)
{
    auto *box = qobject_cast<QComboBox *>(widget("useCaseComboBox"));
    const int index = box ? box->findText(name) : -1;
    if (index < 0) {
        throw PaneError(QStringLiteral("the pane %1 has no use case \"%2\"").arg(m_pane, name));
    }
    box->setCurrentIndex(index);
}

QWidget *PaneCommands::widget(const char *objectName) const
{
    const auto *dock =
        m_window->findChild<QDockWidget *>(QLatin1String("Tessera.Widget.") + m_pane);
    const auto found =
        dock ? dock->findChildren<QWidget *>(QLatin1String(objectName)) : QList<QWidget *>();
    // A pane keeps a browser for each source and shows one of them.
    const auto shown = std::find_if(found.cbegin(), found.cend(), [dock](const QWidget *candidate) {
        return candidate->isVisibleTo(dock);
    });
    return shown == found.cend() ? nullptr : *shown;
}

} // namespace Viewer
