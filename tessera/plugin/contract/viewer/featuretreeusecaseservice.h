// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/service.h"

#include <QVariantMap>

namespace Plugin::Tessera {

/// Offers use cases: lists of parameters, each of which answers a task of the user.
class VANTREL_HOST_EXPORT IFeatureTreeUseCaseService : public Core::Service::IService
{
    Q_OBJECT
    Q_PROPERTY(QVariantMap useCaseMap READ useCaseMap NOTIFY useCaseMapChanged)

public:
    explicit IFeatureTreeUseCaseService(QObject *parent);
    ~IFeatureTreeUseCaseService() override;

    /// Reads the catalogue. False when a file could not be read or is no JSON.
    virtual bool load() = 0;
    /// From the name of each use case in the user's language to the full paths of its parameters.
    virtual QVariantMap useCaseMap() = 0;
    /// The same for the one entry that defines the Basic pane.
    virtual QVariantMap basicUseCaseMap() = 0;

Q_SIGNALS:
    /// Declared for those who bind to the property; a catalogue does not change during a run.
    void useCaseMapChanged();
};

} // namespace Plugin::Tessera
