// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

#include "host/simulation/description/descriptionreader.h"
#include "host/simulation/simulatedcollection.h"

#include <QSharedPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

/// A collection over the small device that these tests describe.
inline QSharedPointer<Simulation::SimulatedCollection> openTestDevice()
{
    Simulation::DescriptionReader reader;
    const auto description = reader.read(QStringLiteral(":/test/device.json"));
    if (!reader.problems().isEmpty())
        qWarning("%s", qPrintable(reader.problems().join(QLatin1Char('\n'))));
    return QSharedPointer<Simulation::SimulatedCollection>::create(description);
}

/// The full name of a feature of the camera itself.
inline QString cameraPath(const char *name)
{
    return QStringLiteral("@CameraDevice/") + QString::fromLatin1(name);
}

/// Listens to the snapshots of a parameter.
class SnapshotSpy : public QSignalSpy
{
public:
    explicit SnapshotSpy(const QSharedPointer<ParameterCollection::IParameter> &parameter)
        : QSignalSpy(parameter.data(),
                     &ParameterCollection::IParameter::parameterDataChangedDecoupled)
    {
    }

    QSharedPointer<const ParameterCollection::ParameterData> snapshot() const
    {
        return last().first().value<QSharedPointer<const ParameterCollection::ParameterData>>();
    }

    QString text() const
    {
        return snapshot()->valueText;
    }
};

/// True if `action` throws an `Exception`.
template<typename Exception, typename Action> bool throws(Action action)
{
    try {
        action();
    } catch (const Exception &) {
        return true;
    } catch (...) {
        return false;
    }
    return false;
}
