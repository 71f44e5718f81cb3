// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/featuredescription.h"

#include <QString>
#include <QVector>

class QJsonObject;
class QJsonValue;

namespace Simulation {

/// Reads what ties a feature to others into its rules. `feature` has its kind, values and entries
/// already. Throws `BadEntry`.
void readRules(const QJsonObject &object, FeatureDescription &feature);
/// The conditions in a JSON array. Throws `BadEntry` naming `key`.
QVector<Condition> readConditions(const QJsonValue &value, const QString &key);
/// A value of the kind of `feature` from JSON. Throws `BadEntry` naming `key`.
Value readValue(const QJsonValue &value, const QString &key, const FeatureDescription &feature);

} // namespace Simulation
