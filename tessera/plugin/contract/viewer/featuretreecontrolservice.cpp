// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreecontrolservice.h"

namespace Plugin::FeatureTree {

IFeatureTreeControlService::IFeatureTreeControlService(QObject *parent)
    : IService(parent)
{
}

IFeatureTreeControlService::~IFeatureTreeControlService() = default;

} // namespace Plugin::FeatureTree
