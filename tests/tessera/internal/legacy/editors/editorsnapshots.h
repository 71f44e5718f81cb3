// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"

#include "internal/legacy/editors/parameteranddata.h"
#include "tessera/featuretest.h"

/// Snapshots that are readable and writable; change what the test is about.
template<typename Data> QSharedPointer<Data> liveSnapshot()
{
    const auto data = QSharedPointer<Data>::create();
    data->isImplemented = true;
    data->isReadable = true;
    data->isWritable = true;
    return data;
}

inline auto integerSnapshot(qint64 value, qint64 minimum, qint64 maximum, qint64 increment = 1,
                            const char *representation = "Linear")
{
    const auto data = liveSnapshot<ParameterCollection::IntegerParameterData>();
    data->value = value;
    data->minimum = minimum;
    data->maximum = maximum;
    data->increment = increment;
    data->representation = QString::fromLatin1(representation);
    data->valueText = QString::number(value);
    return data;
}

/// An increment of 0 is none.
inline auto floatSnapshot(double value, double minimum, double maximum, double increment = 0.0,
                          int precision = 3)
{
    const auto data = liveSnapshot<ParameterCollection::FloatParameterData>();
    data->value = value;
    data->minimum = minimum;
    data->maximum = maximum;
    data->hasIncrement = increment > 0.0;
    data->increment = increment;
    data->displayPrecision = precision;
    data->representation = QStringLiteral("Linear");
    return data;
}

/// A test of editors over a camera with one parameter of each kind.
class EditorTest : public FeatureTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        attach(QStringLiteral("Int Integer 5 [0..100]\n"
                              "Slider Integer 5 [0..100] rep=Linear\n"
                              "Float Float 5 [0..1000]\n"
                              "ExposureTime Float 200 [100..1000000] rep=Logarithmic\n"
                              "Gain Float 5 [0..100] rep=Logarithmic\n"
                              "Alone Float 5 [0..100] rep=Linear\n"
                              "Switch Boolean 1\n"
                              "Choice Enum Off entries=Off,On\n"
                              "Go Command\n"
                              "ExposureTime/Alias Integer 100 [100..1000000]\n"
                              "Gain/Alias Integer 40 [0..1000]\n"));
    }

    ParameterAndData pair(
        const char *name,
        const QSharedPointer<const ParameterCollection::ParameterData> &snapshot) const
    {
        return {m_collection->parameter(pathOf(name)), snapshot};
    }
};
