// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "snapshotcomparison.h"

#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"

#include <cmath>
#include <tuple>

using namespace ParameterCollection;

namespace {

bool areAlike(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

bool areAlike(const IntegerParameterData &left, const IntegerParameterData &right)
{
    const auto all = [](const IntegerParameterData &data) {
        return std::tie(data.value, data.minimum, data.maximum, data.increment,
                        data.representation);
    };
    return all(left) == all(right);
}

bool areAlike(const FloatParameterData &left, const FloatParameterData &right)
{
    const auto exact = [](const FloatParameterData &data) {
        return std::tie(data.hasIncrement, data.displayPrecision, data.representation);
    };
    return exact(left) == exact(right) && areAlike(left.value, right.value)
        && areAlike(left.minimum, right.minimum) && areAlike(left.maximum, right.maximum)
        && areAlike(left.increment, right.increment);
}

bool areAlike(const EnumParameterData &left, const EnumParameterData &right)
{
    const auto all = [](const EnumParameterData &data) {
        return std::tie(data.currentEntry, data.entryNames, data.entryDisplayNames);
    };
    return all(left) == all(right);
}

bool areAlike(const BooleanParameterData &left, const BooleanParameterData &right)
{
    return left.value == right.value;
}

bool areAlike(const CommandParameterData &left, const CommandParameterData &right)
{
    return left.isDone == right.isDone;
}

// True for two of another kind than `Data`, and for two of that kind that are alike.
template<typename Data> bool agree(const ParameterData &left, const ParameterData &right)
{
    const auto *a = dynamic_cast<const Data *>(&left);
    const auto *b = dynamic_cast<const Data *>(&right);
    return a && b ? areAlike(*a, *b) : !a && !b;
}

} // namespace

bool tellTheSame(const ParameterData &left, const ParameterData &right)
{
    const auto common = [](const ParameterData &data) {
        return std::tie(data.type, data.visibility, data.isReadable, data.isWritable,
                        data.isImplemented, data.isValid, data.valueText);
    };
    return common(left) == common(right) && agree<IntegerParameterData>(left, right)
        && agree<FloatParameterData>(left, right) && agree<EnumParameterData>(left, right)
        && agree<BooleanParameterData>(left, right) && agree<CommandParameterData>(left, right);
}
