// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parameterdata.h"
#include "support/fakefault.h"

#include <QHash>
#include <QMap>
#include <QSharedPointer>
#include <QStringList>
#include <QVector>

#include <functional>

namespace Tests {

/// The memory behind one fake parameter, open to the test. Change it as a device would, then
/// `publish`.
struct FakeNode
{
    QString fullName;
    QString name;
    ParameterCollection::ParameterType type = ParameterCollection::Category;
    int visibility = 0;
    bool isReadable = true;
    bool isWritable = true;
    bool isImplemented = true;
    bool isNull = false;
    bool hasFilterTarget = false;
    double number = 0.0; ///< value of integers, floats and switches
    double minimum = 0.0;
    double maximum = 0.0; ///< no limits where it equals `minimum`
    QByteArray text; ///< value of strings and enumerations
    QStringList entries;
    QMap<QString, QString> properties;
    QStringList children; ///< full paths

    Fault onWrite = Fault::None;
    Fault onProperty = Fault::None;
    Fault onOverride = Fault::None; ///< setProperty
    Fault onType = Fault::None;
    Fault onRefresh = Fault::None;

    QStringList writes; ///< what was written, refused or not, as text
    int refreshes = 0;
    int executions = 0;
    int invalidations = 0;
    std::function<bool()> isSubscribed;
    /// Sends a snapshot to those who listen: this one, or the present state.
    std::function<void(QSharedPointer<const ParameterCollection::ParameterData>)> send;

    QString valueText() const;
    QSharedPointer<ParameterCollection::ParameterData> snapshot() const;
    void publish() const;
    /// Takes a value as a device does: throws for what it cannot hold.
    void write(const QString &value);
    void write(double value);

private:
    void store(double value);
    void answer(const std::function<void()> &change);
};

/// A parameter collection in memory, made from indented text, one node a line:
///
///     AnalogControl
///       Gain Float 1.5 [0..24] unit=dB rep=Linear
///       Mode Enum Off entries=Off,On expert ro
///
/// A line without one of the types Integer, Float, Boolean, Enum, String, Command, Other is a
/// category. Further words: a value, [minimum..maximum], ro, wo, na, ni, expert, guru, invisible,
/// unit=, rep=, name=, tip= ("_" stands for a blank), entries=.
class FakeCollection final : public ParameterCollection::IParameterCollection
{
    Q_OBJECT

public:
    explicit FakeCollection(QObject *parent = nullptr);
    ~FakeCollection() override;

    /// Adds the nodes of `text` below the category `path`/Root and tells that they are there.
    void attach(const QString &path, const QString &text);
    /// The memory of a node that exists.
    FakeNode &node(const QString &fullName);
    /// Publications come through the event loop, as over a wire; so they do from the start where
    /// the environment has TESSERA_DELAYED_PUBLICATION.
    void setDelayed(bool delayed);

    QHash<QString, Fault> onParameter; ///< by path
    QHash<QString, Fault> onChildren; ///< by path
    Fault onUpdate = Fault::None; ///< poll and endBatchUpdate
    QVector<int> polls; ///< elapsed milliseconds of each call
    int batchUpdates = 0;

    QSharedPointer<ParameterCollection::IParameter> parameter(const QString &fullName) override;
    bool contains(const QString &fullName) const override;
    QStringList attachedParameterPaths() const override;
    QStringList children(const QString &parentFullName, int reserved, bool flag) const override;
    void endBatchUpdate() override;
    void poll(int elapsedMilliseconds) override;

private:
    QString addNode(const QString &path, const QString &line);
    QSharedPointer<ParameterCollection::IParameter> makeParameter(
        const QSharedPointer<FakeNode> &node);

    QStringList m_paths;
    QMap<QString, QSharedPointer<FakeNode>> m_nodes;
    QMap<QString, QSharedPointer<ParameterCollection::IParameter>> m_parameters;
    bool m_delayed = qEnvironmentVariableIsSet("TESSERA_DELAYED_PUBLICATION");
};

} // namespace Tests
