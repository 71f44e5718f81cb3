// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parameterkinds.h"

#include "commandparameter.h"
#include "floatparameter.h"
#include "integerparameter.h"
#include "typedparameter.h"

#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/enumparameter.h"

using namespace ParameterCollection;

namespace Simulation {

QSharedPointer<IParameter> makeParameter(const QSharedPointer<ParameterLibrary> &library, int id)
{
    switch (library->description().feature(id).type) {
    case ParameterType::Integer:
        return QSharedPointer<IntegerParameter>::create(library, id);
    case ParameterType::Boolean:
        return QSharedPointer<TypedParameter<IBooleanParameter>>::create(library, id);
    case ParameterType::Float:
        return QSharedPointer<FloatParameter>::create(library, id);
    case ParameterType::Command:
        return QSharedPointer<CommandParameter>::create(library, id);
    case ParameterType::Enumeration:
        return QSharedPointer<TypedParameter<IEnumParameter>>::create(library, id);
    default:
        return QSharedPointer<TypedParameter<IParameter>>::create(library, id);
    }
}

} // namespace Simulation
