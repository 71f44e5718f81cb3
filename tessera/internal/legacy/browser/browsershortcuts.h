// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "browserwidgets.h"

#include <QObject>

#include <functional>

class FeatureTreeWidget;
class QAbstractItemView;
class QKeySequence;
class QPushButton;

/// The keys of a browser that have no menu entry: F3 and Ctrl+F go to the search, with Ctrl, Alt
/// and Shift the minus key closes and the plus key opens all categories, F5 refreshes, Shift+F10
/// opens the menu of the current row.
///
/// Where several browsers stand in one window, the key belongs to the one with the focus, else to
/// the first that can be seen.
class BrowserShortcuts final : public QObject
{
    Q_OBJECT

public:
    BrowserShortcuts(FeatureTreeWidget *browser, const BrowserWidgets &widgets);

    void focusSearch() const;
    void collapseAll() const;
    void expandAll() const;
    void clickRefresh() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Act = void (BrowserShortcuts::*)() const;

    void add(QWidget *place, const QKeySequence &keys, Act act);
    static void addMenuKey(QAbstractItemView *view);
    /// Those of the browser that a key of this window belongs to.
    const BrowserShortcuts &chosen() const;

    FeatureTreeWidget *m_browser = nullptr; // parent
    BrowserWidgets m_widgets; // the pointers: the browser drops its own before the widgets go
};
