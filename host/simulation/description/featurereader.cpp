// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featurereader.h"

#include "jsonvalues.h"
#include "rulesreader.h"

#include <QJsonArray>
#include <QJsonObject>

#include <limits>

using ParameterCollection::ParameterType;

namespace Simulation {

namespace {

/// The value that `words` gives for the text under `key`, or `fallback` where the key is absent.
template<typename T>
T readWord(const QJsonObject &object, const QString &key, const QHash<QString, T> &words,
           T fallback)
{
    if (!object.contains(key))
        return fallback;
    const QString word = object.value(key).toString();
    const auto found = words.constFind(word);
    if (found == words.cend())
        throw BadEntry(QStringLiteral("\"%1\": \"%2\" is unknown").arg(key, word));
    return *found;
}

ParameterType readType(const QJsonObject &object)
{
    static const QHash<QString, ParameterType> words {
        {QStringLiteral("Integer"), ParameterType::Integer},
        {QStringLiteral("Boolean"), ParameterType::Boolean},
        {QStringLiteral("Float"), ParameterType::Float},
        {QStringLiteral("Command"), ParameterType::Command},
        {QStringLiteral("String"), ParameterType::String},
        {QStringLiteral("Enumeration"), ParameterType::Enumeration},
    };
    return readWord(object, QStringLiteral("type"), words, ParameterType::None);
}

GenApi::EVisibility readVisibility(const QJsonObject &object)
{
    static const QHash<QString, GenApi::EVisibility> words {
        {QStringLiteral("Beginner"), GenApi::Beginner},
        {QStringLiteral("Expert"), GenApi::Expert},
        {QStringLiteral("Guru"), GenApi::Guru},
        {QStringLiteral("Invisible"), GenApi::Invisible},
    };
    return readWord(object, QStringLiteral("visibility"), words, GenApi::Beginner);
}

AccessMode readAccess(const QJsonObject &object)
{
    static const QHash<QString, AccessMode> words {
        {QStringLiteral("RW"), AccessMode::ReadWrite},
        {QStringLiteral("RO"), AccessMode::ReadOnly},
        {QStringLiteral("WO"), AccessMode::WriteOnly},
        {QStringLiteral("NA"), AccessMode::NotAvailable},
        {QStringLiteral("NI"), AccessMode::NotImplemented},
    };
    return readWord(object, QStringLiteral("access"), words, AccessMode::ReadWrite);
}

FeatureDescription::Encoding readEncoding(const QJsonObject &object)
{
    using Encoding = FeatureDescription::Encoding;
    static const QHash<QString, Encoding> words {
        {QStringLiteral("utf8"), Encoding::Utf8},
        {QStringLiteral("latin1"), Encoding::Latin1},
    };
    return readWord(object, QStringLiteral("encoding"), words, Encoding::Utf8);
}

QString readRepresentation(const QJsonObject &object, ParameterType type)
{
    static const QStringList words {QStringLiteral("HexNumber"), QStringLiteral("PureNumber"),
                                    QStringLiteral("Linear"),    QStringLiteral("Logarithmic"),
                                    QStringLiteral("Boolean"),   QStringLiteral("IPV4Address"),
                                    QStringLiteral("MACAddress")};
    if (type != ParameterType::Integer && type != ParameterType::Float)
        return {};
    const QString word = object.value(QLatin1String("representation")).toString();
    const auto known = words.indexOf(word);
    if (known < 0 && !word.isEmpty())
        throw BadEntry(QStringLiteral("\"representation\": \"%1\" is unknown").arg(word));
    return words.at(known < 0 ? 1 : known);
}

void readTexts(const QJsonObject &object, FeatureDescription &feature)
{
    feature.name = object.value(QLatin1String("name")).toString();
    feature.displayName = object.value(QLatin1String("displayName")).toString();
    feature.toolTip = object.value(QLatin1String("tooltip")).toString();
    feature.description = object.value(QLatin1String("description")).toString();
    feature.docuUrl = object.value(QLatin1String("docuUrl")).toString();
    feature.unit = object.value(QLatin1String("unit")).toString();
    feature.visibility = readVisibility(object);
}

EntryDescription readEntry(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    EntryDescription entry;
    entry.name =
        value.isString() ? value.toString() : object.value(QLatin1String("name")).toString();
    entry.displayName = object.value(QLatin1String("displayName")).toString(entry.name);
    entry.availableWhile = readConditions(object.value(QLatin1String("availableWhile")),
                                          QStringLiteral("entries/availableWhile"));
    if (entry.name.isEmpty())
        throw BadEntry(QStringLiteral("\"entries\" holds one without a name"));
    return entry;
}

void readEntries(const QJsonObject &object, FeatureDescription &feature)
{
    const QJsonArray entries = object.value(QLatin1String("entries")).toArray();
    if (feature.type != ParameterType::Enumeration)
        return;
    if (entries.isEmpty())
        throw BadEntry(QStringLiteral("an enumeration needs \"entries\""));
    feature.entries.reserve(entries.size());
    std::transform(entries.begin(), entries.end(), std::back_inserter(feature.entries), readEntry);
}

void setWidestLimits(FeatureDescription &feature)
{
    using Int = std::numeric_limits<qint64>;
    using Double = std::numeric_limits<double>;
    const bool isFloat = feature.type == ParameterType::Float;
    feature.minimum = isFloat ? Value(Double::lowest()) : Value(Int::min());
    feature.maximum = isFloat ? Value(Double::max()) : Value(Int::max());
    feature.increment = isFloat ? Value(0.0) : Value(qint64(1));
}

void readNumber(const QJsonObject &object, const QString &key, const FeatureDescription &feature,
                Value &target)
{
    if (object.contains(key))
        target = readValue(object.value(key), key, feature);
}

void readNumbers(const QJsonObject &object, FeatureDescription &feature)
{
    if (feature.type != ParameterType::Integer && feature.type != ParameterType::Float)
        return;
    setWidestLimits(feature);
    readNumber(object, QStringLiteral("minimum"), feature, feature.minimum);
    readNumber(object, QStringLiteral("maximum"), feature, feature.maximum);
    readNumber(object, QStringLiteral("increment"), feature, feature.increment);
    if (numberOf(feature.minimum) > numberOf(feature.maximum))
        throw BadEntry(QStringLiteral("\"minimum\" lies above \"maximum\""));
    const double lowestStep = feature.type == ParameterType::Integer ? 1.0 : 0.0;
    if (numberOf(feature.increment) < lowestStep)
        throw BadEntry(QStringLiteral("\"increment\" is too small"));
    feature.displayPrecision =
        static_cast<qint16>(object.value(QLatin1String("displayPrecision")).toInt(2));
}

/// A feature without a value of its own starts at the end of its range that is nearest to 0.
void readStartValue(const QJsonObject &object, FeatureDescription &feature)
{
    if (object.contains(QLatin1String("value")))
        feature.value =
            readValue(object.value(QLatin1String("value")), QStringLiteral("value"), feature);
    else if (feature.type == ParameterType::Float)
        feature.value = qBound(numberOf(feature.minimum), 0.0, numberOf(feature.maximum));
    else if (feature.type == ParameterType::Integer)
        feature.value = qBound(integerOf(feature.minimum), qint64(0), integerOf(feature.maximum));
    else if (feature.type == ParameterType::String)
        feature.value = QByteArray();
}

} // namespace

FeatureDescription readFeature(const QJsonObject &object)
{
    FeatureDescription feature;
    readTexts(object, feature);
    if (feature.name.isEmpty() || feature.name.contains(QLatin1Char('/')))
        throw BadEntry(QStringLiteral("a feature needs a \"name\" without slashes"));
    feature.type = readType(object);
    if (feature.type == ParameterType::None)
        throw BadEntry(QStringLiteral("\"%1\" needs a \"type\"").arg(feature.name));
    feature.access = readAccess(object);
    feature.encoding = readEncoding(object);
    feature.representation = readRepresentation(object, feature.type);
    feature.maxLength = object.value(QLatin1String("maxLength")).toInt();
    readEntries(object, feature);
    readNumbers(object, feature);
    readStartValue(object, feature);
    readRules(object, feature);
    return feature;
}

FeatureDescription readCategory(const QJsonObject &object)
{
    FeatureDescription category;
    readTexts(object, category);
    category.name = object.value(QLatin1String("category")).toString();
    if (category.name.isEmpty() || category.name.contains(QLatin1Char('/')))
        throw BadEntry(QStringLiteral("a category needs a name without slashes"));
    category.type = ParameterType::Category;
    category.access = AccessMode::ReadOnly;
    return category;
}

} // namespace Simulation
