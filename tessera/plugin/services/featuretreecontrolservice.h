// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/viewer/featuretreecontrolservice.h"

namespace Plugin::Tessera::Internal {

/// Turns the host's calls into signals for the panes. Keeps nothing: who connects later hears
/// only what comes later.
class CFeatureTreeControlService final : public Plugin::FeatureTree::IFeatureTreeControlService
{
    Q_OBJECT

public:
    explicit CFeatureTreeControlService(QObject *parent);
    ~CFeatureTreeControlService() override;

    void registerParameterSource(Core::AppCoreComponents::BaseInfoPtr info) override;
    void unregisterParameterSource(Core::AppCoreComponents::BaseInfoPtr info) override;
    void setActiveParameterSource(Core::AppCoreComponents::BaseInfoPtr info) override;
    void requestFeatureTreeRefresh() override;

Q_SIGNALS:
    void parameterSourceRegistered(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    void parameterSourceUnregistered(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    /// Null when no source is active.
    void activeParameterSourceChanged(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    void featureTreeRefreshRequested();
};

} // namespace Plugin::Tessera::Internal
