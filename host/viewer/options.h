// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Viewer {

/// What the command line asked for. Paths are as given; names are checked against their fixed lists
/// already, ids of sources are not.
struct Options
{
    QStringList sources; ///< ids to open; empty: the default camera
    QString pane; ///< pane to raise, such as "All"; empty: as the window was left
    QString select; ///< full path of a category or feature
    QString search; ///< text for the search line
    QString useCase; ///< name of a use case as the pane shows it
    std::optional<int> visibility; ///< level 0 to 3
    QString language; ///< code for this run; empty: as chosen in the menu
    bool printFeatures = false; ///< print the feature text of the active source, then end
    QString screenshot; ///< file to save a picture of the window to, then end
    QString settings; ///< folder in place of the user's settings folder

    /// True when nobody is meant to look at the window: it ends by itself.
    bool runsUnattended() const
    {
        return printFeatures || !screenshot.isEmpty();
    }
};

} // namespace Viewer
