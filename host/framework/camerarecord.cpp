// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "camerarecord.h"

namespace Host {

CameraRecord::CameraRecord(const QString &displayName, const QString &modelName,
                           const QString &deviceClass, QObject *parent)
    : ICameraInfo(parent)
    , m_displayName(displayName)
    , m_modelName(modelName)
    , m_deviceClass(deviceClass)
{
}

CameraRecord::~CameraRecord() = default;

QString CameraRecord::sourceCategory() const
{
    return QStringLiteral("Device");
}

QString CameraRecord::displayName() const
{
    return m_displayName;
}

QString CameraRecord::modelName() const
{
    return m_modelName;
}

QString CameraRecord::deviceClass() const
{
    return m_deviceClass;
}

} // namespace Host
