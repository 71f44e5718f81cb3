// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "snapshots.h"

#include "nodeoverrides.h"
#include "valuetext.h"

#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/stringparameterdata.h"

#include "host/simulation/description/featuredescription.h"
#include "host/simulation/device/simulateddevice.h"

#include <tuple>

using namespace ParameterCollection;

namespace Simulation {

namespace {

QSharedPointer<ParameterData> integerData(const FeatureDescription &feature, const Reading &reading)
{
    auto data = QSharedPointer<IntegerParameterData>::create();
    data->value = integerOf(reading.value);
    data->minimum = integerOf(reading.limits.minimum);
    data->maximum = integerOf(reading.limits.maximum);
    data->increment = integerOf(reading.limits.increment);
    data->representation = feature.representation;
    return data;
}

QSharedPointer<ParameterData> floatData(const FeatureDescription &feature, const Reading &reading)
{
    auto data = QSharedPointer<FloatParameterData>::create();
    data->value = numberOf(reading.value);
    data->minimum = numberOf(reading.limits.minimum);
    data->maximum = numberOf(reading.limits.maximum);
    data->increment = numberOf(reading.limits.increment);
    data->hasIncrement = data->increment > 0.0;
    data->displayPrecision = feature.displayPrecision;
    data->representation = feature.representation;
    return data;
}

QSharedPointer<ParameterData> enumData(const FeatureDescription &feature, const Reading &reading)
{
    auto data = QSharedPointer<EnumParameterData>::create();
    data->currentEntry = textOfValue(feature, reading.value);
    data->entryNames.reserve(reading.entries.size());
    data->entryDisplayNames.reserve(reading.entries.size());
    for (int entry : reading.entries) {
        data->entryNames.append(feature.entries.at(entry).name);
        data->entryDisplayNames.append(feature.entries.at(entry).displayName);
    }
    return data;
}

QSharedPointer<ParameterData> valueData(const FeatureDescription &feature, const Reading &reading)
{
    switch (feature.type) {
    case ParameterType::Integer:
        return integerData(feature, reading);
    case ParameterType::Float:
        return floatData(feature, reading);
    case ParameterType::Enumeration:
        return enumData(feature, reading);
    case ParameterType::Boolean: {
        auto data = QSharedPointer<BooleanParameterData>::create();
        data->value = integerOf(reading.value) != 0;
        return data;
    }
    case ParameterType::Command: {
        auto data = QSharedPointer<CommandParameterData>::create();
        data->isDone = reading.isDone;
        return data;
    }
    case ParameterType::String:
        return QSharedPointer<StringParameterData>::create();
    default:
        return QSharedPointer<ParameterData>::create();
    }
}

bool isWithinLimits(const FeatureDescription &feature, const Reading &reading)
{
    const Limits &limits = reading.limits;
    if (feature.type == ParameterType::Integer)
        return integerOf(limits.minimum) <= integerOf(reading.value)
            && integerOf(reading.value) <= integerOf(limits.maximum);
    if (feature.type == ParameterType::Float)
        return numberOf(limits.minimum) <= numberOf(reading.value)
            && numberOf(reading.value) <= numberOf(limits.maximum);
    return true;
}

bool sameCommon(const ParameterData &left, const ParameterData &right)
{
    const auto fields = [](const ParameterData &data) {
        return std::tie(data.type, data.visibility, data.isReadable, data.isWritable,
                        data.isImplemented, data.isValid, data.valueText);
    };
    return fields(left) == fields(right);
}

template<typename Data, typename Fields>
bool sameFields(const Snapshot &left, const Snapshot &right, Fields fields)
{
    const auto *first = dynamic_cast<const Data *>(left.data());
    const auto *second = dynamic_cast<const Data *>(right.data());
    return first && second ? fields(*first) == fields(*second) : !first && !second;
}

} // namespace

Snapshot makeSnapshot(const FeatureDescription &feature, const Reading &reading,
                      const NodeOverrides &overrides, const std::optional<Value> &forced)
{
    Reading shown = reading;
    shown.access = overrides.access(reading.access);
    if (forced)
        shown.value = *forced;
    const QSharedPointer<ParameterData> data = valueData(feature, shown);
    data->visibility = overrides.visibility(feature.visibility);
    data->isImplemented = shown.access != AccessMode::NotImplemented;
    data->isReadable = isReadable(shown.access);
    data->isWritable = isWritable(shown.access) && (forced || isWithinLimits(feature, shown));
    if (data->isReadable)
        data->valueText = textOfValue(feature, shown.value);
    return data;
}

Snapshot makeCategorySnapshot(const FeatureDescription &category, const NodeOverrides &overrides)
{
    auto data = QSharedPointer<ParameterData>::create();
    data->type = ParameterType::Category;
    data->visibility = overrides.visibility(category.visibility);
    data->isImplemented = true;
    data->isReadable = true;
    return data;
}

bool sayTheSame(const Snapshot &left, const Snapshot &right)
{
    if (left.isNull() || right.isNull())
        return left.isNull() && right.isNull();
    // The text shows a float rounded, so its numbers are compared too.
    return sameCommon(*left, *right)
        && sameFields<IntegerParameterData>(left, right,
                                            [](const IntegerParameterData &data) {
                                                return std::tie(data.value, data.minimum,
                                                                data.maximum, data.increment);
                                            })
        && sameFields<FloatParameterData>(left, right,
                                          [](const FloatParameterData &data) {
                                              return std::tie(data.value, data.minimum,
                                                              data.maximum, data.increment);
                                          })
        && sameFields<BooleanParameterData>(
               left, right, [](const BooleanParameterData &data) { return data.value; })
        && sameFields<CommandParameterData>(
               left, right, [](const CommandParameterData &data) { return data.isDone; })
        && sameFields<EnumParameterData>(left, right, [](const EnumParameterData &data) {
               return std::tie(data.currentEntry, data.entryNames);
           });
}

} // namespace Simulation
