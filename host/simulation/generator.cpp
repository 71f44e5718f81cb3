// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "generator.h"

#include "simulatedcollection.h"

#include "description/devicedescription.h"

#include <QVector>

using ParameterCollection::ParameterType;

namespace Simulation {

namespace {

FeatureDescription integer(const QString &representation, qint64 maximum)
{
    FeatureDescription feature;
    feature.type = ParameterType::Integer;
    feature.representation = representation;
    feature.maximum = maximum;
    feature.increment = qint64(1);
    return feature;
}

FeatureDescription number(const QString &representation)
{
    FeatureDescription feature;
    feature.type = ParameterType::Float;
    feature.representation = representation;
    feature.unit = QStringLiteral("us");
    feature.value = 10.0;
    feature.minimum = 1.0;
    feature.maximum = 1000.0;
    feature.increment = 0.5;
    return feature;
}

FeatureDescription choice()
{
    FeatureDescription feature;
    feature.type = ParameterType::Enumeration;
    for (const auto *name : {"Off", "Once", "Continuous"}) {
        EntryDescription entry;
        entry.name = QString::fromLatin1(name);
        entry.displayName = entry.name;
        feature.entries.append(entry);
    }
    return feature;
}

FeatureDescription plain(ParameterType type)
{
    FeatureDescription feature;
    feature.type = type;
    if (type == ParameterType::String)
        feature.value = QByteArray("text");
    return feature;
}

/// One feature of each kind; all texts in them are shared by the copies.
QVector<FeatureDescription> patterns()
{
    return {integer(QStringLiteral("PureNumber"), 65535),
            integer(QStringLiteral("Linear"), 4095),
            integer(QStringLiteral("HexNumber"), 0xFFFFFFFF),
            plain(ParameterType::Boolean),
            number(QStringLiteral("PureNumber")),
            number(QStringLiteral("Linear")),
            choice(),
            plain(ParameterType::String),
            plain(ParameterType::Command)};
}

FeatureDescription category(int number)
{
    FeatureDescription feature = plain(ParameterType::Category);
    feature.name = QStringLiteral("Category%1").arg(number);
    feature.displayName = feature.name;
    feature.access = AccessMode::ReadOnly;
    return feature;
}

} // namespace

QSharedPointer<SimulatedCollection> generateCollection(int features, int perCategory)
{
    const auto description = QSharedPointer<DeviceDescription>::create();
    const QVector<FeatureDescription> kinds = patterns();
    description->info.displayName = QStringLiteral("Generated device");
    description->info.model = QStringLiteral("Generated");
    description->reserve(features + features / qMax(1, perCategory) + 2);
    const int root = description->addTree(QStringLiteral("@CameraDevice"), 0);
    int parent = root;
    for (int i = 0; i < features; ++i) {
        if (i % qMax(1, perCategory) == 0)
            parent = description->addFeature(category(i / qMax(1, perCategory) + 1), root);
        FeatureDescription feature = kinds.at(i % kinds.size());
        feature.name = QStringLiteral("Feature%1").arg(i + 1);
        feature.displayName = feature.name;
        description->addFeature(std::move(feature), parent);
    }
    return QSharedPointer<SimulatedCollection>::create(description);
}

} // namespace Simulation
