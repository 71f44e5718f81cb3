// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "camerainfo.h"

namespace Core::CameraPoolComponents {

ICameraInfo::ICameraInfo(QObject *parent)
    : IDeviceBaseInfo(parent)
{
}

ICameraInfo::~ICameraInfo() = default;

} // namespace Core::CameraPoolComponents
