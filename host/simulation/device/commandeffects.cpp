// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "commandeffects.h"

#include "devicestate.h"

#include "host/simulation/description/rulesreader.h"

#include <QJsonArray>

namespace Simulation {

namespace {

using Effect = void (*)(DeviceState &, int);

QJsonValue parameterOf(const DeviceState &state, int id, const char *key)
{
    return state.feature(id).rules->effect.parameters.value(QLatin1String(key));
}

/// The number of the feature that `key` names; the description was checked to have it.
int namedFeature(const DeviceState &state, int id, const char *key)
{
    return state.description().findFrom(id, parameterOf(state, id, key).toString());
}

void set(DeviceState &state, int id)
{
    const int target = namedFeature(state, id, "feature");
    const QString key = QStringLiteral("value");
    if (target >= 0)
        state.change(target,
                     readValue(parameterOf(state, id, "value"), key, state.feature(target)));
}

void latch(DeviceState &state, int id)
{
    const int target = namedFeature(state, id, "feature");
    const int source = namedFeature(state, id, "value");
    if (target >= 0 && source >= 0)
        state.change(target, state.value(source));
}

void countUp(DeviceState &state, int id)
{
    const QJsonArray names = parameterOf(state, id, "counts").toArray();
    for (const QJsonValue &name : names) {
        const int target = state.description().findFrom(id, name.toString());
        if (target >= 0)
            state.change(target, state.pulledIn(target, integerOf(state.value(target)) + 1));
    }
}

qint64 chosenSet(const DeviceState &state, int id)
{
    const int selector = state.feature(id).rules->selectedBy.id;
    return selector < 0 ? 0 : integerOf(state.value(selector));
}

void loadUserSet(DeviceState &state, int id)
{
    state.loadUserSet(chosenSet(state, id));
}

void saveUserSet(DeviceState &state, int id)
{
    state.saveUserSet(chosenSet(state, id));
}

void reset(DeviceState &state, int)
{
    state.reset();
}

} // namespace

void applyEffect(DeviceState &state, int id)
{
    static const QHash<QString, Effect> effects {
        {QStringLiteral("set"), set},
        {QStringLiteral("acquisitionStart"), set},
        {QStringLiteral("acquisitionStop"), set},
        {QStringLiteral("latch"), latch},
        {QStringLiteral("softwareTrigger"), countUp},
        {QStringLiteral("userSetLoad"), loadUserSet},
        {QStringLiteral("userSetSave"), saveUserSet},
        {QStringLiteral("reset"), reset},
    };
    const QSharedPointer<FeatureRules> &rules = state.feature(id).rules;
    if (const Effect effect = rules ? effects.value(rules->effect.kind) : nullptr)
        effect(state, id);
}

} // namespace Simulation
