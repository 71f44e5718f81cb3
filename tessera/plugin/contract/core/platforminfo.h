// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QObject>

namespace Utils {

/// What QML scenes need to know of the system they run on.
class VANTREL_HOST_EXPORT PlatformInfo : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isWindows READ isWindows CONSTANT)

public:
    explicit PlatformInfo(QObject *parent = nullptr);
    ~PlatformInfo() override;

    bool isWindows() const;
};

} // namespace Utils
