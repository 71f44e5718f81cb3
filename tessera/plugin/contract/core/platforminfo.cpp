// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "platforminfo.h"

namespace Utils {

PlatformInfo::PlatformInfo(QObject *parent)
    : QObject(parent)
{
}

PlatformInfo::~PlatformInfo() = default;

bool PlatformInfo::isWindows() const
{
#ifdef Q_OS_WIN
    return true;
#else
    return false;
#endif
}

} // namespace Utils
