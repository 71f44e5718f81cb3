// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "rulesreader.h"

#include "jsonvalues.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <limits>

using ParameterCollection::ParameterType;

namespace Simulation {

namespace {

FeatureReference referenceTo(const QJsonValue &value)
{
    FeatureReference reference;
    reference.name = value.toString();
    return reference;
}

Condition readCondition(const QJsonValue &value, const QString &key)
{
    const QJsonObject object = value.toObject();
    Condition condition;
    condition.feature = referenceTo(object.value(QLatin1String("feature")));
    const QJsonValue is = object.value(QLatin1String("is"));
    const QJsonArray texts = is.isArray() ? is.toArray() : QJsonArray {is};
    std::transform(texts.begin(), texts.end(), std::back_inserter(condition.is), textFromJson);
    if (condition.feature.name.isEmpty() || is.isUndefined())
        throw BadEntry(QStringLiteral("\"%1\" needs \"feature\" and \"is\"").arg(key));
    return condition;
}

std::optional<MovingLimit> readLimit(const QJsonObject &limits, const QString &key,
                                     const FeatureDescription &feature)
{
    if (!limits.contains(key))
        return std::nullopt;
    const QJsonObject object = limits.value(key).toObject();
    MovingLimit limit;
    limit.of = referenceTo(object.value(QLatin1String("of")));
    if (object.contains(QLatin1String("value")))
        limit.constant = readValue(object.value(QLatin1String("value")), key, feature);
    else if (limit.of.name.isEmpty())
        throw BadEntry(QStringLiteral("\"limits\": \"%1\" needs \"of\" or \"value\"").arg(key));
    const QJsonArray minus = object.value(QLatin1String("minus")).toArray();
    std::transform(minus.begin(), minus.end(), std::back_inserter(limit.minus), referenceTo);
    return limit;
}

AliasRule readAlias(const QJsonObject &object)
{
    AliasRule alias;
    alias.minimum =
        integerFromJson(object.value(QLatin1String("minimum")), QStringLiteral("alias/minimum"));
    alias.maximum =
        integerFromJson(object.value(QLatin1String("maximum")), QStringLiteral("alias/maximum"));
    alias.increment = integerFromJson(object.value(QLatin1String("increment")).toVariant().isNull()
                                          ? QJsonValue(1)
                                          : object.value(QLatin1String("increment")),
                                      QStringLiteral("alias/increment"));
    if (object.value(QLatin1String("mapping")).toString() == QLatin1String("unit"))
        alias.mapping = AliasRule::Mapping::Unit;
    using Int = std::numeric_limits<qint32>;
    if (alias.minimum < Int::min() || alias.maximum > Int::max() || alias.maximum <= alias.minimum
        || alias.increment < 1)
        throw BadEntry(QStringLiteral("\"alias\" needs 32-bit limits and a step of 1 or more"));
    return alias;
}

Activity readActivity(const QJsonObject &object, const QString &key)
{
    Activity activity;
    activity.parameters = object.value(key).toObject();
    activity.kind = activity.parameters.value(QLatin1String("kind")).toString();
    if (object.contains(key) && activity.kind.isEmpty())
        throw BadEntry(QStringLiteral("\"%1\" needs a \"kind\"").arg(key));
    return activity;
}

void readSelection(const QJsonObject &object, FeatureDescription &feature)
{
    FeatureRules &rules = feature.ensureRules();
    rules.selectedBy = referenceTo(object.value(QLatin1String("selectedBy")));
    const QJsonObject selected = object.value(QLatin1String("selected")).toObject();
    for (auto it = selected.begin(); it != selected.end(); ++it)
        rules.selectedTexts.insert(it.key(), readValue(it.value(), it.key(), feature));
}

FeatureRules::NullObject readNullObject(const QJsonValue &value)
{
    if (value.toString() == QLatin1String("filterTarget"))
        return FeatureRules::NullObject::FilterTarget;
    return value.isUndefined() ? FeatureRules::NullObject::No : FeatureRules::NullObject::Plain;
}

} // namespace

Value readValue(const QJsonValue &value, const QString &key, const FeatureDescription &feature)
{
    switch (feature.type) {
    case ParameterType::Float:
        return numberFromJson(value, key);
    case ParameterType::String: {
        const QString text = value.toString();
        return feature.encoding == FeatureDescription::Encoding::Latin1 ? text.toLatin1()
                                                                        : text.toUtf8();
    }
    case ParameterType::Enumeration: {
        const qint64 entry = feature.entryIndex(value.toString());
        if (entry < 0)
            throw BadEntry(
                QStringLiteral("\"%1\": no entry is named \"%2\"").arg(key, value.toString()));
        return entry;
    }
    default:
        return integerFromJson(value, key);
    }
}

QVector<Condition> readConditions(const QJsonValue &value, const QString &key)
{
    const QJsonArray array = value.isObject() ? QJsonArray {value} : value.toArray();
    QVector<Condition> conditions;
    conditions.reserve(array.size());
    std::transform(array.begin(), array.end(), std::back_inserter(conditions),
                   [&key](const QJsonValue &item) { return readCondition(item, key); });
    return conditions;
}

void readRules(const QJsonObject &object, FeatureDescription &feature)
{
    static const QStringList keys {QStringLiteral("limits"),         QStringLiteral("lockedWhile"),
                                   QStringLiteral("availableWhile"), QStringLiteral("selectedBy"),
                                   QStringLiteral("alias"),          QStringLiteral("polled"),
                                   QStringLiteral("behaviour"),      QStringLiteral("durationMs"),
                                   QStringLiteral("effect"),         QStringLiteral("null")};
    if (std::none_of(keys.begin(), keys.end(),
                     [&object](const QString &key) { return object.contains(key); }))
        return;

    FeatureRules &rules = feature.ensureRules();
    const QJsonObject limits = object.value(QLatin1String("limits")).toObject();
    rules.minimum = readLimit(limits, QStringLiteral("minimum"), feature);
    rules.maximum = readLimit(limits, QStringLiteral("maximum"), feature);
    rules.lockedWhile =
        readConditions(object.value(QLatin1String("lockedWhile")), QStringLiteral("lockedWhile"));
    rules.availableWhile = readConditions(object.value(QLatin1String("availableWhile")),
                                          QStringLiteral("availableWhile"));
    if (object.contains(QLatin1String("selectedBy")))
        readSelection(object, feature);
    if (object.contains(QLatin1String("alias")))
        rules.alias = readAlias(object.value(QLatin1String("alias")).toObject());
    rules.behaviour = readActivity(object, QStringLiteral("behaviour"));
    rules.activeWhile = readConditions(rules.behaviour.parameters.value(QLatin1String("while")),
                                       QStringLiteral("behaviour/while"));
    rules.effect = readActivity(object, QStringLiteral("effect"));
    rules.durationMs = object.value(QLatin1String("durationMs")).toInt();
    rules.isPolled = object.value(QLatin1String("polled")).toBool();
    rules.nullObject = readNullObject(object.value(QLatin1String("null")));
}

} // namespace Simulation
