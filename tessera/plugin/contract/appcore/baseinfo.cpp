// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "baseinfo.h"

namespace Core::AppCoreComponents {

IBaseInfo::IBaseInfo(QObject *parent)
    : QObject(parent)
{
}

IBaseInfo::~IBaseInfo() = default;

} // namespace Core::AppCoreComponents
