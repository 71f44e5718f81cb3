// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "featurelist.h"

#include <QString>

namespace Core {
class CId;
}

namespace Plugin::Tessera {

/// Place of a pane among the user panes, 0 to 3; -1 for the All and the Basic pane.
int userTabIndex(const Core::CId &pane);

/// The state of one pane that outlives a run. Widths are in pixels; -1 for one that nobody chose.
struct PaneSettings
{
    bool isPolling = false;
    QString userTabName; ///< as the user typed it
    FeatureList features; ///< in the order of display
    bool isUserTabOpen = false;
    bool isUserTabAvailable = false; ///< the user made a tab of this pane
    int treeWidth = -1; ///< of the All pane
    int nameColumnWidth = -1; ///< first column of the pane's tables
};

/// What the store has for `pane`. The All pane gets the list of the Basic pane.
PaneSettings loadPaneSettings(const Core::CId &pane);

/// Writes what belongs to `pane`. The list that the All pane got is not its own and not written.
/// The polling state is shared by all panes: the one that writes last has it its way.
void savePaneSettings(const Core::CId &pane, const PaneSettings &settings);

} // namespace Plugin::Tessera
