// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "contractmodule.h"

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/enumparameter.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/parameternode.h"

#include <stdexcept>

using namespace ParameterCollection;

namespace {

// What every kind has to answer, as a parameter that was unplugged does.
template<typename Kind> class Unplugged : public Kind
{
public:
    void setFromString(const QString &) override
    {
    }
    bool isNull() const override
    {
        return true;
    }
    bool isWritable() const override
    {
        return false;
    }
    bool isImplemented() const override
    {
        return false;
    }
    bool hasFilterTarget() const override
    {
        return false;
    }
    GenApi::EVisibility visibility() const override
    {
        return GenApi::UndefinedVisibility;
    }
    ParameterType type() const override
    {
        return ParameterType::Other;
    }
    QString fullName() const override
    {
        return {};
    }
    QString name() const override
    {
        return {};
    }
    QSharedPointer<IParameterNode> node() const override
    {
        return {};
    }
    QSharedPointer<const ParameterData> parameterData() const override
    {
        return {};
    }
    void refresh(bool) override
    {
    }
};

class IntegerStandIn final : public Unplugged<IIntegerParameter>
{
    Q_OBJECT

public:
    void setValue(qint64, bool) override
    {
    }
    qint64 value() const override
    {
        return 0;
    }
};

class FloatStandIn final : public Unplugged<IFloatParameter>
{
    Q_OBJECT

public:
    void setValue(double, bool) override
    {
    }
    double value() const override
    {
        return 0.0;
    }
    double minimum() const override
    {
        return 0.0;
    }
    double maximum() const override
    {
        return 0.0;
    }
};

class CommandStandIn final : public Unplugged<ICommandParameter>
{
    Q_OBJECT

public:
    void execute(bool) override
    {
    }
};

} // namespace

extern "C" Q_DECL_EXPORT IParameter *makeParameter(int kind)
{
    switch (kind) {
    case ParameterType::Integer:
        return new IntegerStandIn;
    case ParameterType::Boolean:
        return new Unplugged<IBooleanParameter>;
    case ParameterType::Float:
        return new FloatStandIn;
    case ParameterType::Command:
        return new CommandStandIn;
    case ParameterType::String:
        return new Unplugged<IParameter>;
    case ParameterType::Enumeration:
        return new Unplugged<IEnumParameter>;
    default:
        return nullptr;
    }
}

extern "C" Q_DECL_EXPORT void throwException(int kind)
{
    constexpr char text[] = "from afar";
    switch (kind) {
    case Generic:
        throw GenICam::GenericException(text, __FILE__, __LINE__);
    case InvalidArgument:
        throw GenICam::InvalidArgumentException(text, __FILE__, __LINE__);
    case Standard:
        throw std::invalid_argument(text);
    case Base:
        throw Core::Exception::BaseException(text);
    default:
        throw kind;
    }
}

#include "contractmodule.moc"
