// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parameterservice.h"

namespace Plugin::ParameterCollectionPool {

IParameterService::IParameterService(QObject *parent)
    : IService(parent)
{
}

IParameterService::~IParameterService() = default;

} // namespace Plugin::ParameterCollectionPool
