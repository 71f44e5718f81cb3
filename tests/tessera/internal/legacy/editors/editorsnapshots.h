// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"

#include "internal/legacy/editors/parameteranddata.h"
#include "tessera/featuretest.h"

#include <cmath>

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

/// Rows of what a float's editor cannot show: columns "snapshot" and "entry", what it logs.
inline void addUnusableSnapshots(const char *foreign, const char *unreadable)
{
    using Snapshot = QSharedPointer<const ParameterCollection::ParameterData>;
    QTest::addColumn<Snapshot>("snapshot");
    QTest::addColumn<QString>("entry");
    const auto locked = floatSnapshot(1, 0, 10);
    locked->isReadable = false;
    QTest::newRow("null") << Snapshot() << foreign;
    QTest::newRow("integer") << Snapshot(integerSnapshot(1, 0, 2)) << foreign;
    QTest::newRow("unreadable") << Snapshot(locked) << unreadable;
    QTest::newRow("contradicting limits") << Snapshot(floatSnapshot(5, 10, 0)) << "";
    QTest::newRow("outside its limits") << Snapshot(floatSnapshot(11, 0, 10)) << "";
    QTest::newRow("not a number") << Snapshot(floatSnapshot(std::nan(""), 0, 10)) << "";
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
                              "Float Float 5 [0..100]\n"
                              "ExposureTime Float 5 [0..100] rep=Logarithmic\n"
                              "Gain Float 5 [0..100] rep=Linear\n"
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
