// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/viewer/camerainfo.h"

namespace Host {

/// The record of a camera; its source category is "Device".
class VANTREL_HOST_EXPORT CameraRecord final : public Core::CameraPoolComponents::ICameraInfo
{
    Q_OBJECT

public:
    /// `deviceClass` is the transport, such as "GEV" or "U3V".
    CameraRecord(const QString &displayName, const QString &modelName, const QString &deviceClass,
                 QObject *parent = nullptr);
    ~CameraRecord() override;

    QString sourceCategory() const override;
    QString displayName() const override;
    QString modelName() const override;
    QString deviceClass() const override;

private:
    QString m_displayName;
    QString m_modelName;
    QString m_deviceClass;
};

} // namespace Host
