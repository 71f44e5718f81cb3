// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

namespace Tests {

/// Keeps the settings of the running program in a folder of their own, which goes with the object.
class SettingsFolder final
{
public:
    SettingsFolder()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("tessera"));
        QCoreApplication::setApplicationName(QStringLiteral("test"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    }

private:
    QTemporaryDir m_folder;
};

} // namespace Tests
