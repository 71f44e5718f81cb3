// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QAction;
class QMenu;

namespace Viewer {

class CurrentFeature;
class VisibilityLevel;

/// What the host adds to the context menu of a feature: copy name, path and value, and the
/// visibility level.
class FeatureContextMenu final : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive the object. `menu` is filled at once.
    FeatureContextMenu(QMenu *menu, CurrentFeature *feature, const VisibilityLevel *level,
                       QObject *parent);

private:
    void updateActions();

    CurrentFeature *m_feature; // borrowed
    QAction *m_copyName; // by parent
    QAction *m_copyPath; // by parent
    QAction *m_copyValue; // by parent
};

} // namespace Viewer
