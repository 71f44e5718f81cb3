// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

// Templates have no meta object of their own. clazy:excludeall=missing-qobject-macro

#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/enumparameter.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/parameternode.h"
#include "support/fakecollection.h"

#include <QMetaMethod>
#include <QTimer>

namespace Tests {

/// The node of a fake parameter.
class FakeParameterNode final : public ParameterCollection::IParameterNode
{
public:
    explicit FakeParameterNode(QSharedPointer<FakeNode> node)
        : m_node(std::move(node))
    {
    }
    QString property(const QString &key) const override
    {
        return property(key, QString());
    }
    QString property(const QString &key, const QString &defaultValue) const override
    {
        raise(m_node->onProperty);
        return m_node->properties.value(key, defaultValue);
    }
    void invalidate() override
    {
        ++m_node->invalidations;
    }
    void setProperty(const QString &key, const QString &value) override
    {
        raise(m_node->onOverride);
        m_node->properties.insert(key, value);
    }

private:
    QSharedPointer<FakeNode> m_node;
};

/// What all kinds of parameter have in common.
template<typename Interface> class FakeParameterBase : public Interface
{
public:
    FakeParameterBase(const QSharedPointer<FakeNode> &node, const bool &delayed)
        : m_node(node)
        , m_parameterNode(new FakeParameterNode(node))
        , m_delayed(delayed)
    {
        node->isSubscribed = [this] {
            return this->isSignalConnected(QMetaMethod::fromSignal(
                &ParameterCollection::IParameter::parameterDataChangedDecoupled));
        };
        node->send = [this](const QSharedPointer<const ParameterCollection::ParameterData> &data) {
            if (m_delayed) {
                QTimer::singleShot(
                    0, this, [this, data] { Q_EMIT this->parameterDataChangedDecoupled(data); });
            } else {
                Q_EMIT this->parameterDataChangedDecoupled(data);
            }
        };
    }

    void setFromString(const QString &value) override
    {
        m_node->write(value);
    }
    bool isNull() const override
    {
        return m_node->isNull;
    }
    bool isWritable() const override
    {
        return m_node->isWritable;
    }
    bool isImplemented() const override
    {
        return m_node->isImplemented;
    }
    bool hasFilterTarget() const override
    {
        return m_node->hasFilterTarget;
    }
    GenApi::EVisibility visibility() const override
    {
        return static_cast<GenApi::EVisibility>(m_node->visibility);
    }
    ParameterCollection::ParameterType type() const override
    {
        raise(m_node->onType);
        return m_node->type;
    }
    QString fullName() const override
    {
        return m_node->fullName;
    }
    QString name() const override
    {
        return m_node->name;
    }
    QSharedPointer<ParameterCollection::IParameterNode> node() const override
    {
        return m_parameterNode;
    }
    QSharedPointer<const ParameterCollection::ParameterData> parameterData() const override
    {
        return m_node->snapshot();
    }
    void refresh(bool /*force*/) override
    {
        ++m_node->refreshes;
        raise(m_node->onRefresh);
        m_node->publish();
    }

protected:
    QSharedPointer<FakeNode> m_node;

private:
    QSharedPointer<ParameterCollection::IParameterNode> m_parameterNode;
    const bool &m_delayed; // the collection's switch
};

template<typename Interface> class FakeParameter final : public FakeParameterBase<Interface>
{
public:
    using FakeParameterBase<Interface>::FakeParameterBase;
};

template<>
class FakeParameter<ParameterCollection::IIntegerParameter> final
    : public FakeParameterBase<ParameterCollection::IIntegerParameter>
{
public:
    using FakeParameterBase::FakeParameterBase;

    void setValue(qint64 value, bool /*verify*/) override
    {
        m_node->write(static_cast<double>(value));
    }
    qint64 value() const override
    {
        return static_cast<qint64>(m_node->number);
    }
};

template<>
class FakeParameter<ParameterCollection::IFloatParameter> final
    : public FakeParameterBase<ParameterCollection::IFloatParameter>
{
public:
    using FakeParameterBase::FakeParameterBase;

    void setValue(double value, bool /*verify*/) override
    {
        m_node->write(value);
    }
    double value() const override
    {
        return m_node->number;
    }
    double minimum() const override
    {
        return m_node->minimum;
    }
    double maximum() const override
    {
        return m_node->maximum;
    }
};

template<>
class FakeParameter<ParameterCollection::ICommandParameter> final
    : public FakeParameterBase<ParameterCollection::ICommandParameter>
{
public:
    using FakeParameterBase::FakeParameterBase;

    void execute(bool /*verify*/) override
    {
        raise(m_node->onWrite);
        ++m_node->executions;
    }
};

} // namespace Tests
