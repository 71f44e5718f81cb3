// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/viewer/featuretreestatusservice.h"

namespace Plugin::Tessera::Internal {

/// The status service of this plug-in: the panes connect to the signals of the base.
class CFeatureTreeStatusService final : public Plugin::FeatureTree::IFeatureTreeStatusService
{
    Q_OBJECT

public:
    explicit CFeatureTreeStatusService(QObject *parent);
    ~CFeatureTreeStatusService() override;
};

} // namespace Plugin::Tessera::Internal
