// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

class QAction;
class QActionGroup;
class QMainWindow;

namespace Viewer {

/// The visibility level of the viewer: Beginner, Expert, Guru or All. The panes have no control for
/// it; the viewer tells every browser below its docks, and those made later when asked to.
class VisibilityLevel final : public QObject
{
    Q_OBJECT

public:
    static constexpr int beginner = 0;
    static constexpr int all = 3;

    /// `window` is borrowed; its docks hold the browsers. Starts with the level of the settings,
    /// Guru at first.
    explicit VisibilityLevel(QMainWindow *window);

    int level() const;
    /// One checkable action per level, for menus.
    QList<QAction *> actions() const;

public Q_SLOTS:
    /// Takes 0 to 3; keeps it for the next start and tells the browsers.
    void setLevel(int level);
    /// Tells the browsers that do not know the level yet.
    void tellBrowsers();

private:
    QMainWindow *m_window; // borrowed
    QActionGroup *m_group; // by parent
    int m_level;
};

} // namespace Viewer
