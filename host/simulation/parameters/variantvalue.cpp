// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "variantvalue.h"

#include "valuetext.h"

#include "host/simulation/description/featuredescription.h"

using ParameterCollection::ParameterType;

namespace Simulation {

QVariant variantOf(const FeatureDescription &feature, const Value &value)
{
    switch (feature.type) {
    case ParameterType::Float:
        return numberOf(value);
    case ParameterType::Boolean:
        return integerOf(value) != 0;
    case ParameterType::Enumeration:
        return textOfValue(feature, value);
    case ParameterType::String:
        return bytesOf(value);
    default:
        return integerOf(value);
    }
}

Value valueOf(const FeatureDescription &feature, const QVariant &variant)
{
    switch (feature.type) {
    case ParameterType::Float:
        return variant.toDouble();
    case ParameterType::Enumeration:
        return valueFromText(feature, variant.toString());
    case ParameterType::String:
        if (variant.userType() == QMetaType::QByteArray)
            return variant.toByteArray();
        return feature.encoding == FeatureDescription::Encoding::Latin1
            ? variant.toString().toLatin1()
            : variant.toString().toUtf8();
    default:
        return variant.toLongLong();
    }
}

} // namespace Simulation
