// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <stdexcept>

class QMainWindow;
class QModelIndex;
class QWidget;

namespace Viewer {

/// A pane or something in it that was asked for by name and is not there; the message is one line.
class PaneError : public std::runtime_error
{
public:
    explicit PaneError(const QString &message);
};

/// Works the shown feature pane as a user would, for the command line: it finds the pane's widgets
/// by their object names and knows nothing of the plug-in's classes.
class PaneCommands
{
public:
    /// `window` is borrowed and outlives the object.
    explicit PaneCommands(QMainWindow *window);

    /// Opens and raises the pane with this name, such as "All". \throws PaneError
    void showPane(const QString &name);
    /// Makes the category or feature with this full path current. \throws PaneError
    void select(const QString &fullName);
    /// Puts `text` into the search line. \throws PaneError
    void search(const QString &text);
    /// Chooses the use case with this name. \throws PaneError
    void chooseUseCase(const QString &name);

private:
    QWidget *widget(const char *objectName) const;

    QMainWindow *m_window; // borrowed
    QString m_pane;
};

} // namespace Viewer
