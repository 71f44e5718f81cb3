// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreestatusservice.h"

namespace Plugin::Tessera::Internal {

CFeatureTreeStatusService::CFeatureTreeStatusService(QObject *parent)
    : IFeatureTreeStatusService(parent)
{
}

CFeatureTreeStatusService::~CFeatureTreeStatusService() = default;

} // namespace Plugin::Tessera::Internal
