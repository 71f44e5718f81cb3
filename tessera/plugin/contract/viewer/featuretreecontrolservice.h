// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/baseinfo.h"
#include "plugin/contract/core/service.h"

namespace Plugin::FeatureTree {

/// Through this the host drives the feature panes. Offered by the plug-in, called by the host on
/// the GUI thread from its event loop, never from inside a write to a parameter.
class VANTREL_HOST_EXPORT IFeatureTreeControlService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IFeatureTreeControlService(QObject *parent);
    ~IFeatureTreeControlService() override;

    /// A source has appeared: its collection can be had from the pool.
    virtual void registerParameterSource(Core::AppCoreComponents::BaseInfoPtr info) = 0;
    /// A source goes away. The panes show their hint until a source is named again.
    virtual void unregisterParameterSource(Core::AppCoreComponents::BaseInfoPtr info) = 0;
    /// The user selected a source; null for none.
    virtual void setActiveParameterSource(Core::AppCoreComponents::BaseInfoPtr info) = 0;
    /// The panes should read their values again.
    virtual void requestFeatureTreeRefresh() = 0;
};

} // namespace Plugin::FeatureTree
