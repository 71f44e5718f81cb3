// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featurecontextmenu.h"

#include "currentfeature.h"
#include "visibilitylevel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

namespace Viewer {

FeatureContextMenu::FeatureContextMenu(QMenu *menu, CurrentFeature *feature,
                                       const VisibilityLevel *level, QObject *parent)
    : QObject(parent)
    , m_feature(feature)
    , m_copyName(menu->addAction(tr("Copy &Name")))
    , m_copyPath(menu->addAction(tr("Copy &Path")))
    , m_copyValue(menu->addAction(tr("Copy &Value")))
{
    menu->addSeparator();
    menu->addMenu(tr("Visibility &Level"))->addActions(level->actions());

    connect(m_copyName, &QAction::triggered, this,
            [this] { QGuiApplication::clipboard()->setText(m_feature->parameter()->name()); });
    connect(m_copyPath, &QAction::triggered, this,
            [this] { QGuiApplication::clipboard()->setText(m_feature->parameter()->fullName()); });
    connect(m_copyValue, &QAction::triggered, this,
            [this] { QGuiApplication::clipboard()->setText(m_feature->snapshot()->valueText); });
    connect(feature, &CurrentFeature::changed, this, &FeatureContextMenu::updateActions);
    connect(feature, &CurrentFeature::snapshotChanged, this, &FeatureContextMenu::updateActions);
    updateActions();
}

void FeatureContextMenu::updateActions()
{
    const bool named = !m_feature->parameter().isNull();
    const auto snapshot = m_feature->snapshot();
    m_copyName->setEnabled(named);
    m_copyPath->setEnabled(named);
    m_copyValue->setEnabled(snapshot && snapshot->isReadable && !snapshot->valueText.isEmpty());
}

} // namespace Viewer
