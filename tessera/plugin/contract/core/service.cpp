// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "service.h"

namespace Core::Service {

IService::IService(QObject *parent)
    : QObject(parent)
{
}

IService::~IService() = default;

} // namespace Core::Service
