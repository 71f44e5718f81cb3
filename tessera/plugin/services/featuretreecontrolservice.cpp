// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreecontrolservice.h"

namespace Plugin::Tessera::Internal {

CFeatureTreeControlService::CFeatureTreeControlService(QObject *parent)
    : IFeatureTreeControlService(parent)
{
    qRegisterMetaType<Core::AppCoreComponents::BaseInfoPtr>("Core::AppCoreComponents::BaseInfoPtr");
}

CFeatureTreeControlService::~CFeatureTreeControlService() = default;

void CFeatureTreeControlService::registerParameterSource(Core::AppCoreComponents::BaseInfoPtr info)
{
    Q_EMIT parameterSourceRegistered(info);
}

void CFeatureTreeControlService::unregisterParameterSource(
    Core::AppCoreComponents::BaseInfoPtr info)
{
    Q_EMIT parameterSourceUnregistered(info);
}

void CFeatureTreeControlService::setActiveParameterSource(Core::AppCoreComponents::BaseInfoPtr info)
{
    Q_EMIT activeParameterSourceChanged(info);
}

void CFeatureTreeControlService::requestFeatureTreeRefresh()
{
    Q_EMIT featureTreeRefreshRequested();
}

} // namespace Plugin::Tessera::Internal
