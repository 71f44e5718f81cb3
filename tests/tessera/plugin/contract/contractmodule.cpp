// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "contractmodule.h"

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
#include "support/fakeparameter.h"

#include <stdexcept>

using namespace ParameterCollection;

namespace {

template<typename Interface> IParameter *make()
{
    static const bool delayed = false;
    return new Tests::FakeParameter<Interface>(QSharedPointer<Tests::FakeNode>::create(), delayed);
}

} // namespace

extern "C" Q_DECL_EXPORT IParameter *makeParameter(int kind)
{
    switch (kind) {
    case ParameterType::Integer:
        return make<IIntegerParameter>();
    case ParameterType::Boolean:
        return make<IBooleanParameter>();
    case ParameterType::Float:
        return make<IFloatParameter>();
    case ParameterType::Command:
        return make<ICommandParameter>();
    case ParameterType::Enumeration:
        return make<IEnumParameter>();
    default:
        return make<IParameter>();
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
