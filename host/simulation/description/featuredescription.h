// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/genapi/visibility.h"
#include "plugin/contract/parametercollection/parametertype.h"

#include "host/simulation/description/accessmode.h"
#include "host/simulation/description/featurerules.h"
#include "host/simulation/description/value.h"

#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace Simulation {

/// One entry of an enumeration; its value is its place in the list.
struct EntryDescription
{
    QString name;
    QString displayName;
    QVector<Condition> availableWhile; ///< all must hold for the entry to be selectable
};

/// One feature or category as a description tells it. Kept small, for there may be thousands:
/// whatever is rare stands in `rules`, which is null for most.
struct FeatureDescription
{
    enum class Encoding : quint8 { Utf8, Latin1 };

    QString name;
    QString displayName;
    QString toolTip;
    QString description;
    QString docuUrl;
    QString unit;
    QString representation;
    ParameterCollection::ParameterType type = ParameterCollection::ParameterType::None;
    GenApi::EVisibility visibility = GenApi::Beginner;
    AccessMode access = AccessMode::ReadWrite;
    Encoding encoding = Encoding::Utf8;
    qint16 displayPrecision = 2; ///< decimals of a float
    int tree = 0; ///< number of the tree that it belongs to
    int maxLength = 0; ///< bytes that a string may have; 0 for any number
    Value value;
    Value minimum;
    Value maximum;
    Value increment; ///< a float without step has 0
    QVector<EntryDescription> entries;
    QVector<int> children; ///< of a category, as numbers
    QVector<int> dependants; ///< features to read again when this one has changed
    QSharedPointer<FeatureRules> rules;

    /// The number of the entry of that name; -1 where there is none.
    int entryIndex(const QString &entryName) const;
    /// The rules, made where there are none yet.
    FeatureRules &ensureRules();
    bool isPolled() const;
};

} // namespace Simulation
