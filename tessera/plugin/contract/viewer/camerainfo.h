// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/viewer/devicebaseinfo.h"

namespace Core::CameraPoolComponents {

/// The record of a camera.
class VANTREL_HOST_EXPORT ICameraInfo : public IDeviceBaseInfo
{
    Q_OBJECT

public:
    explicit ICameraInfo(QObject *parent = nullptr);
    ~ICameraInfo() override;

    /// The transport: "GEV" (GigE Vision), "U3V" (USB3 Vision), "CL", "CXP", "IPCam", "Custom" or
    /// "Mockrig" (an emulated camera). The strings of a "GEV" camera are UTF-8.
    virtual QString deviceClass() const = 0;
};

} // namespace Core::CameraPoolComponents
