// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QString>
#include <QVector>
#include <QVersionNumber>

class QPluginLoader;

namespace Host {

class PluginCatalogue;

/// What a plug-in file says of itself before any of its code runs.
struct VANTREL_HOST_EXPORT PluginMetaData
{
    struct Dependency
    {
        QString name;
        QVersionNumber version; ///< the oldest one that will do
    };

    QString name;
    QVersionNumber version;
    QVector<Dependency> dependencies; ///< a row may stand there more than once

    /// Reads the file that `loader` names. Throws `PluginError` where it is missing, no plug-in, a
    /// plug-in for another application or without a name or a version.
    static PluginMetaData read(const QPluginLoader &loader);
    /// Throws `PluginError`, naming `path`, at the first dependency that `catalogue` cannot meet.
    void requireDependencies(const PluginCatalogue &catalogue, const QString &path) const;
};

} // namespace Host
