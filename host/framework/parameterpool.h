// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/viewer/parameterservice.h"

#include <QHash>

namespace Host {

/// The pool of parameter collections: whoever opens a source puts its collection in, everybody else
/// gets it from here.
class VANTREL_HOST_EXPORT ParameterPool final
    : public Plugin::ParameterCollectionPool::IParameterService
{
    Q_OBJECT

public:
    explicit ParameterPool(QObject *parent = nullptr);
    ~ParameterPool() override;

    /// Offers `collection` under `record`, in place of one offered before. Neither may be null.
    void insert(const Core::AppCoreComponents::BaseInfoPtr &record,
                const QSharedPointer<ParameterCollection::IParameterCollection> &collection);
    /// Takes the collection of `record` out; an unknown record changes nothing.
    void remove(const Core::AppCoreComponents::BaseInfoPtr &record);

    QSharedPointer<ParameterCollection::IParameterCollection> parameterCollection(
        Core::AppCoreComponents::BaseInfoPtr info) override;

private:
    QHash<Core::AppCoreComponents::BaseInfoPtr,
          QSharedPointer<ParameterCollection::IParameterCollection>>
        m_collections;
};

} // namespace Host
