// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreestatusservice.h"

namespace Plugin::FeatureTree {

IFeatureTreeStatusService::IFeatureTreeStatusService(QObject *parent)
    : IService(parent)
{
}

IFeatureTreeStatusService::~IFeatureTreeStatusService() = default;

} // namespace Plugin::FeatureTree
