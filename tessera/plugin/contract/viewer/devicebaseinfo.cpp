// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "devicebaseinfo.h"

namespace Core::CameraPoolComponents {

IDeviceBaseInfo::IDeviceBaseInfo(QObject *parent)
    : IBaseInfo(parent)
{
}

IDeviceBaseInfo::~IDeviceBaseInfo() = default;

QString IDeviceBaseInfo::reservedPlace3() const
{
    return {};
}

} // namespace Core::CameraPoolComponents
