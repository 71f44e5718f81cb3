// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/baseinfo.h"

namespace Core::CameraPoolComponents {

/// The record of a device.
class VANTREL_HOST_EXPORT IDeviceBaseInfo : public Core::AppCoreComponents::IBaseInfo
{
    Q_OBJECT

public:
    explicit IDeviceBaseInfo(QObject *parent = nullptr);
    ~IDeviceBaseInfo() override;

    /// The name shown to the user.
    virtual QString displayName() const = 0;
    /// The model name; the first part of the name of a filter file made for this model.
    virtual QString modelName() const = 0;
    /// A place of the host that plug-ins do not call.
    virtual QString reservedPlace3() const;
};

} // namespace Core::CameraPoolComponents
