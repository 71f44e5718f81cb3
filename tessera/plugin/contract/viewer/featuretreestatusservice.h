// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/service.h"
#include "plugin/contract/genapi/visibility.h"
#include "plugin/contract/parametercollection/parameter.h"

namespace Plugin::FeatureTree {

/// Through this the application hears what the user does in the feature panes.
class VANTREL_HOST_EXPORT IFeatureTreeStatusService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IFeatureTreeStatusService(QObject *parent);
    ~IFeatureTreeStatusService() override;

Q_SIGNALS:
    /// A pane took a visibility level. Comes once for each pane; never to be answered by a change.
    void visibilityChanged(GenApi::EVisibility visibility);
    /// The current parameter of a pane; null for none.
    void currentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    /// A text for the status area.
    void newText(QString text);
};

} // namespace Plugin::FeatureTree
