// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/value.h"

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace Simulation {

/// A reference to another feature: by name in a description, by number once it is resolved.
struct FeatureReference
{
    QString name;
    int id = -1;
};

/// True while `feature` has one of the values that `is` names.
struct Condition
{
    FeatureReference feature;
    QStringList is;
    QVector<qint64> values; ///< `is` as values of the feature
};

/// A limit that follows other features: the value of `of`, or `constant` where that is absent,
/// less the values of `minus`.
struct MovingLimit
{
    FeatureReference of;
    Value constant;
    QVector<FeatureReference> minus;
};

/// The integer companion of a float, behind a slider.
struct AliasRule
{
    enum class Mapping : quint8 {
        Unit, ///< one step is one unit of the float
        Linear, ///< the range of the float is spread over the range of the companion
    };

    qint64 minimum = 0;
    qint64 maximum = 0;
    qint64 increment = 1;
    Mapping mapping = Mapping::Linear;
};

/// A behaviour or the effect of a command: its kind and whatever that kind wants to know.
struct Activity
{
    QString kind;
    QJsonObject parameters;
};

/// What only some features have: everything that ties them to others or makes them move.
struct FeatureRules
{
    enum class NullObject : quint8 { No, Plain, FilterTarget };

    std::optional<MovingLimit> minimum;
    std::optional<MovingLimit> maximum;
    QVector<Condition> lockedWhile; ///< any that holds locks the feature
    QVector<Condition> availableWhile; ///< all must hold for the feature to be available
    FeatureReference selectedBy;
    QHash<QString, Value> selectedTexts; ///< start values by the text of the selector's value
    QHash<qint64, Value> selectedValues; ///< the same by the selector's value
    std::optional<AliasRule> alias;
    int aliasId = -1; ///< number of the companion of this float
    int aliasOf = -1; ///< number of the float whose companion this is
    Activity behaviour;
    QVector<Condition> activeWhile; ///< the behaviour runs while all hold
    Activity effect;
    int durationMs = 0; ///< run time of a command
    bool isPolled = false; ///< changes on the camera's side are not reported
    NullObject nullObject = NullObject::No; ///< the parameter stands for no node
};

} // namespace Simulation
