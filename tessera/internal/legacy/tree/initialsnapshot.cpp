// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "initialsnapshot.h"

#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/stringparameterdata.h"
#include "plugin/services/exceptionbarrier.h"

using namespace ParameterCollection;
using Plugin::Tessera::runGuarded;

namespace {

QSharedPointer<ParameterData> blankSnapshot(ParameterType type)
{
    switch (type) {
    case Integer:
        return QSharedPointer<IntegerParameterData>::create();
    case Boolean:
        return QSharedPointer<BooleanParameterData>::create();
    case Float:
        return QSharedPointer<FloatParameterData>::create();
    case Command:
        return QSharedPointer<CommandParameterData>::create();
    case String:
        return QSharedPointer<StringParameterData>::create();
    case Enumeration:
        return QSharedPointer<EnumParameterData>::create();
    case None:
    case Category:
    case Other:
        break;
    }
    return QSharedPointer<ParameterData>::create();
}

} // namespace

QSharedPointer<const ParameterData> initialSnapshot(const IParameter &parameter)
{
    ParameterType type = None;
    runGuarded([&] { type = parameter.type(); });
    QSharedPointer<const ParameterData> own;
    if (type == Category) {
        runGuarded([&] { own = parameter.parameterData(); });
    }
    if (own) {
        return own;
    }
    const QSharedPointer<ParameterData> blank = blankSnapshot(type);
    runGuarded([&] {
        blank->visibility = parameter.visibility();
        blank->isImplemented = parameter.isImplemented();
    });
    return blank;
}
