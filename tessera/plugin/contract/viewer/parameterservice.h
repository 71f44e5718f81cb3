// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/baseinfo.h"
#include "plugin/contract/core/service.h"

namespace ParameterCollection {
class IParameterCollection;
}

namespace Plugin::ParameterCollectionPool {

/// The pool of parameter collections.
class VANTREL_HOST_EXPORT IParameterService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IParameterService(QObject *parent);
    ~IParameterService() override;

    /// The collection of a source: the same object for each call. Null for an unknown source.
    virtual QSharedPointer<ParameterCollection::IParameterCollection> parameterCollection(
        Core::AppCoreComponents::BaseInfoPtr info) = 0;
};

} // namespace Plugin::ParameterCollectionPool
