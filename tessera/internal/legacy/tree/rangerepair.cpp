// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "rangerepair.h"

#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/services/exceptionbarrier.h"

using namespace ParameterCollection;

namespace {

template<typename Data> bool isOutside(const ParameterData &snapshot)
{
    const auto *data = dynamic_cast<const Data *>(&snapshot);
    return data && data->minimum <= data->maximum
        && (data->value < data->minimum || data->value > data->maximum);
}

template<typename Data> bool sameRange(const ParameterData &left, const ParameterData &right)
{
    const auto *a = dynamic_cast<const Data *>(&left);
    const auto *b = dynamic_cast<const Data *>(&right);
    const auto equal = [](auto x, auto y) { return !(x < y) && !(y < x); };
    return a && b && equal(a->value, b->value) && equal(a->minimum, b->minimum)
        && equal(a->maximum, b->maximum);
}

template<typename Interface, typename Data>
bool writeLimit(const QSharedPointer<IParameter> &parameter, const ParameterData &snapshot)
{
    const auto *data = dynamic_cast<const Data *>(&snapshot);
    const QSharedPointer<Interface> number = parameter.objectCast<Interface>();
    if (!data || !number) {
        return false;
    }
    const auto limit = data->value < data->minimum ? data->minimum : data->maximum;
    Plugin::Tessera::runGuarded([&] { number->setValue(limit, true); });
    return true;
}

} // namespace

bool isOutOfRange(const ParameterData &snapshot)
{
    return snapshot.isWritable
        && (isOutside<IntegerParameterData>(snapshot) || isOutside<FloatParameterData>(snapshot));
}

bool haveSameRange(const ParameterData &left, const ParameterData &right)
{
    return sameRange<IntegerParameterData>(left, right)
        || sameRange<FloatParameterData>(left, right);
}

bool pullIntoRange(const QSharedPointer<IParameter> &parameter, const ParameterData &snapshot)
{
    return writeLimit<IIntegerParameter, IntegerParameterData>(parameter, snapshot)
        || writeLimit<IFloatParameter, FloatParameterData>(parameter, snapshot);
}
