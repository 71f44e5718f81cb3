// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/plugininfoservice.h"

#include <QHash>
#include <QVersionNumber>

namespace Host {

/// What can be depended on: the parts of this host ("AppCore", "ParameterCollectionPool" and
/// "CameraPool", all 2.0.0) and the plug-ins that have been initialized.
class VANTREL_HOST_EXPORT PluginCatalogue final : public Core::Plugin::IPluginInfoService
{
    Q_OBJECT

public:
    explicit PluginCatalogue(QObject *parent = nullptr);
    ~PluginCatalogue() override;

    void add(const QString &name, const QVersionNumber &version);
    /// The version of a part or plug-in; a null one when it is not there.
    QVersionNumber version(const QString &name) const;

    /// Whether the host has a Workbench source to offer, which stands for a plug-in "Workbench".
    void setWorkbenchOffered(bool offered);

    bool isPluginAvailable(const QString &pluginName) const override;

private:
    QHash<QString, QVersionNumber> m_versions; // by name
    bool m_workbenchOffered = false;
};

} // namespace Host
