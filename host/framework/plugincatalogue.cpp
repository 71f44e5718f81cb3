// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugincatalogue.h"

namespace Host {

PluginCatalogue::PluginCatalogue(QObject *parent)
    : IPluginInfoService(parent)
{
    const QVersionNumber own(2, 0, 0);
    add(QStringLiteral("AppCore"), own);
    add(QStringLiteral("ParameterCollectionPool"), own);
    add(QStringLiteral("CameraPool"), own);
}

PluginCatalogue::~PluginCatalogue() = default;

void PluginCatalogue::add(const QString &name, const QVersionNumber &version)
{
    m_versions.insert(name, version);
}

QVersionNumber PluginCatalogue::version(const QString &name) const
{
    return m_versions.value(name);
}

void PluginCatalogue::setWorkbenchOffered(bool offered)
{
    m_workbenchOffered = offered;
}

bool PluginCatalogue::isPluginAvailable(const QString &pluginName) const
{
    return m_versions.contains(pluginName)
        || (m_workbenchOffered && pluginName == QLatin1String("Workbench"));
}

} // namespace Host
