// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "commandeffects.h"

#include "devicestate.h"

namespace Simulation {

namespace {

/// The number of the feature that `key` names in the effect of `id`, or `fallback`; -1 if none.
int target(const DeviceState &state, int id, const char *key, const char *fallback)
{
    const QJsonObject &parameters = state.feature(id).rules->effect.parameters;
    const QString name =
        parameters.value(QLatin1String(key)).toString(QString::fromLatin1(fallback));
    return state.description().findFrom(id, name);
}

void set(DeviceState &state, int id, qint64 value)
{
    if (id >= 0)
        state.change(id, value);
}

} // namespace

void applyEffect(DeviceState &state, int id)
{
    const FeatureDescription &command = state.feature(id);
    if (!command.rules)
        return;
    const QString &kind = command.rules->effect.kind;
    if (kind == QLatin1String("acquisitionStart"))
        set(state, target(state, id, "feature", "TLParamsLocked"), 1);
    else if (kind == QLatin1String("acquisitionStop"))
        set(state, target(state, id, "feature", "TLParamsLocked"), 0);
    else if (kind == QLatin1String("reset"))
        state.reset();
}

} // namespace Simulation
