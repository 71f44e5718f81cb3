// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

#include "host/simulation/parameters/parametercore.h"
#include "host/simulation/parameters/parameterlibrary.h"
#include "host/simulation/parameters/parameternode.h"

#include <QMetaMethod>

namespace Simulation {

/// The part of every kind of parameter that `IParameter` asks for, under the interface of the
/// kind. There is no meta object of its own: casts go to the interface.
template<class Interface> class TypedParameter : public Interface, public ParameterCore
{
public:
    TypedParameter(const QSharedPointer<ParameterLibrary> &library, int id)
        : ParameterCore(library, id)
        , m_node(QSharedPointer<ParameterNode>::create(library, id))
    {
    }

    void setFromString(const QString &value) override
    {
        writeText(value);
    }

    bool isNull() const override
    {
        return !library().isLive();
    }

    bool isWritable() const override
    {
        return library().isLive() && snapshot()->isWritable;
    }

    bool isImplemented() const override
    {
        return library().isLive() && snapshot()->isImplemented;
    }

    bool hasFilterTarget() const override
    {
        return false;
    }

    GenApi::EVisibility visibility() const override
    {
        return library().overrides(id()).visibility(feature().visibility);
    }

    ParameterCollection::ParameterType type() const override
    {
        return feature().type;
    }

    QString fullName() const override
    {
        return library().description().fullName(id());
    }

    QString name() const override
    {
        return feature().name.section(QLatin1Char('/'), -1);
    }

    QSharedPointer<ParameterCollection::IParameterNode> node() const override
    {
        return m_node;
    }

    Snapshot parameterData() const override
    {
        return snapshot();
    }

    void refresh(bool force) override
    {
        library().refresh(id(), force);
    }

    bool hasReceivers() const override
    {
        return this->isSignalConnected(changeSignal());
    }

    void emitSnapshot(const Snapshot &snapshot) override
    {
        Q_EMIT this->parameterDataChangedDecoupled(snapshot);
    }

protected:
    void connectNotify(const QMetaMethod &signal) override // clazy:exclude=function-args-by-value
    {
        if (signal == changeSignal())
            library().counters().count(fullName(), &AccessCounts::subscriptions);
    }

private:
    static QMetaMethod changeSignal()
    {
        static const QMetaMethod signal = QMetaMethod::fromSignal(
            &ParameterCollection::IParameter::parameterDataChangedDecoupled);
        return signal;
    }

    QSharedPointer<ParameterNode> m_node;
};

} // namespace Simulation
