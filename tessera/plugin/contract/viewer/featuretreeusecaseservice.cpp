// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreeusecaseservice.h"

namespace Plugin::Tessera {

IFeatureTreeUseCaseService::IFeatureTreeUseCaseService(QObject *parent)
    : IService(parent)
{
}

IFeatureTreeUseCaseService::~IFeatureTreeUseCaseService() = default;

} // namespace Plugin::Tessera
