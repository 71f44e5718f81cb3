// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "browsershortcuts.h"

#include "featuretreewidget.h"
#include "searchedit.h"

#include "internal/legacy/tree/featuretreeview.h"
#include "internal/view/featuretableview.h"

#include <QApplication>
#include <QPushButton>
#include <QShortcut>
#include <QShortcutEvent>

#include <algorithm>

BrowserShortcuts::BrowserShortcuts(FeatureTreeWidget *browser, const BrowserWidgets &widgets)
    : QObject(browser)
    , m_browser(browser)
    , m_widgets(widgets)
{
    const auto all = Qt::CTRL | Qt::ALT | Qt::SHIFT;
    add(widgets.filterEdit, QKeySequence(Qt::Key_F3), &BrowserShortcuts::focusSearch);
    add(widgets.filterEdit, QKeySequence(QStringLiteral("Ctrl+F")), &BrowserShortcuts::focusSearch);
    add(widgets.treeView, QKeySequence(all | Qt::Key_Minus), &BrowserShortcuts::collapseAll);
    add(browser, QKeySequence(all | Qt::Key_Plus), &BrowserShortcuts::expandAll);
    addMenuKey(widgets.treeView);
    addMenuKey(widgets.tableView);
    widgets.resetButton->installEventFilter(this);
}

void BrowserShortcuts::add(QWidget *place, const QKeySequence &keys, Act act)
{
    auto *shortcut = new QShortcut(keys, place);
    connect(shortcut, &QShortcut::activated, this, [this, act] { (this->*act)(); });
    connect(shortcut, &QShortcut::activatedAmbiguously, this, [this, act] { (chosen().*act)(); });
}

// The menu key reaches a view by itself; this one does so on some systems only.
void BrowserShortcuts::addMenuKey(QAbstractItemView *view)
{
    auto *shortcut = new QShortcut(QKeySequence(QStringLiteral("Shift+F10")), view);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, view, [view] {
        view->scrollTo(view->currentIndex());
        Q_EMIT view->customContextMenuRequested(view->visualRect(view->currentIndex()).center());
    });
}

void BrowserShortcuts::focusSearch() const
{
    m_widgets.filterEdit->setFocus();
}

void BrowserShortcuts::collapseAll() const
{
    m_widgets.treeView->collapseAll();
}

void BrowserShortcuts::expandAll() const
{
    m_browser->expandTree();
}

void BrowserShortcuts::clickRefresh() const
{
    m_widgets.resetButton->click();
}

const BrowserShortcuts &BrowserShortcuts::chosen() const
{
    const QList<FeatureTreeWidget *> browsers =
        m_browser->window()->findChildren<FeatureTreeWidget *>();
    const auto hasFocus = [](const FeatureTreeWidget *each) {
        return each->isAncestorOf(QApplication::focusWidget());
    };
    auto found = std::find_if(browsers.cbegin(), browsers.cend(), hasFocus);
    if (found == browsers.cend()) {
        found = std::find_if(browsers.cbegin(), browsers.cend(),
                             [](const FeatureTreeWidget *each) { return each->isVisible(); });
    }
    return found == browsers.cend() ? *this : *(*found)->findChild<BrowserShortcuts *>();
}

// By itself an ambiguous key of a button would only move the focus there.
bool BrowserShortcuts::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_widgets.resetButton && event->type() == QEvent::Shortcut
        && static_cast<const QShortcutEvent *>(event)->isAmbiguous()) {
        chosen().clickRefresh();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
