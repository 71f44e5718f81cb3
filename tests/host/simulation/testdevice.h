// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#pragma once

#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/parameternode.h"

#include "host/simulation/description/descriptionreader.h"
#include "host/simulation/simulatedcollection.h"

#include <QSharedPointer>
#include <QSignalSpy>
#include <QTest>

/// The full name of a feature of the camera itself.
inline QString cameraPath(const QByteArray &name)
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

/// A test over the small device that these tests describe; each function gets a new one. Names are
/// those of features of the camera itself.
class DeviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Simulation::DescriptionReader reader;
        const auto description = reader.read(QStringLiteral(":/test/device.json"));
        QCOMPARE(reader.problems(), QStringList());
        m_collection = QSharedPointer<Simulation::SimulatedCollection>::create(description);
    }

protected:
    template<typename Interface = ParameterCollection::IParameter>
    QSharedPointer<Interface> parameter(const QByteArray &name) const
    {
        return m_collection->parameter(cameraPath(name)).objectCast<Interface>();
    }

    template<typename Data = ParameterCollection::ParameterData>
    QSharedPointer<const Data> data(const QByteArray &name) const
    {
        return parameter(name)->parameterData().dynamicCast<const Data>();
    }

    /// The value in the camera.
    QVariant memory(const QByteArray &name) const
    {
        return m_collection->deviceValue(cameraPath(name));
    }

    void write(const QByteArray &name, const QString &text) const
    {
        parameter(name)->setFromString(text);
    }

    void write(const QByteArray &name, const char *text) const
    {
        write(name, QString::fromLatin1(text));
    }

    QSharedPointer<Simulation::SimulatedCollection> m_collection;
};
