// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "referenceresolver.h"

#include "devicedescription.h"
#include "jsonvalues.h"
#include "rulesreader.h"

#include <algorithm>

using ParameterCollection::ParameterType;

namespace Simulation {

namespace {

QStringList behaviourKinds()
{
    return {QStringLiteral("drift"),    QStringLiteral("counter"),
            QStringLiteral("clock"),    QStringLiteral("autoExposure"),
            QStringLiteral("autoGain"), QStringLiteral("autoWhiteBalance")};
}

QStringList effectKinds()
{
    return {QStringLiteral("set"),         QStringLiteral("acquisitionStart"),
            QStringLiteral("latch"),       QStringLiteral("acquisitionStop"),
            QStringLiteral("userSetLoad"), QStringLiteral("softwareTrigger"),
            QStringLiteral("userSetSave"), QStringLiteral("reset")};
}

/// Resolves the rules of one feature after the other, collecting what is wrong.
class Resolver final
{
public:
    explicit Resolver(DeviceDescription &description)
        : m_description(description)
    {
    }

    void resolve(int id)
    {
        m_id = id;
        for (EntryDescription &entry : m_description.feature(id).entries)
            resolve(entry.availableWhile);
        FeatureRules *rules = m_description.feature(id).rules.data();
        if (!rules)
            return;
        resolve(rules->lockedWhile);
        resolve(rules->availableWhile);
        resolve(rules->activeWhile, false);
        resolve(rules->minimum);
        resolve(rules->maximum);
        resolveSelection(*rules);
        checkActivity(rules->behaviour, behaviourKinds());
        checkActivity(rules->effect, effectKinds());
        if (rules->aliasOf >= 0) {
            follow(rules->aliasOf);
            m_description.feature(id).dependants.append(rules->aliasOf);
        }
    }

    QStringList problems;

private:
    void report(const QString &what)
    {
        problems.append(m_description.fullName(m_id) % QStringLiteral(": ") % what);
    }

    /// Whatever a float hangs on, its companion hangs on too.
    void follow(int leader)
    {
        addDependant(leader, m_id);
        const auto &rules = m_description.feature(m_id).rules;
        if (rules && rules->aliasId >= 0)
            addDependant(leader, rules->aliasId);
    }

    void addDependant(int leader, int id)
    {
        QVector<int> &dependants = m_description.feature(leader).dependants;
        if (leader != id && !dependants.contains(id))
            dependants.append(id);
    }

    bool find(FeatureReference &reference, bool isFollowed = true)
    {
        reference.id = m_description.findFrom(m_id, reference.name);
        if (reference.id < 0)
            report(QStringLiteral("there is no feature \"%1\"").arg(reference.name));
        else if (isFollowed)
            follow(reference.id);
        return reference.id >= 0;
    }

    /// The value that `text` names for the feature `id`; `ok` tells whether it names one.
    qint64 valueOf(int id, const QString &text, bool *ok) const
    {
        const FeatureDescription &feature = m_description.feature(id);
        if (feature.type == ParameterType::Enumeration) {
            const int entry = feature.entryIndex(text);
            *ok = entry >= 0;
            return entry;
        }
        *ok = true;
        if (text == QLatin1String("true") || text == QLatin1String("false"))
            return text == QLatin1String("true") ? 1 : 0;
        return integerFromText(text, ok);
    }

    bool resolve(Condition &condition, bool isFollowed = true)
    {
        if (!find(condition.feature, isFollowed))
            return false;
        for (const QString &text : qAsConst(condition.is)) {
            bool ok = false;
            condition.values.append(valueOf(condition.feature.id, text, &ok));
            if (!ok) {
                report(QStringLiteral("\"%1\" is no value of \"%2\"")
                           .arg(text, condition.feature.name));
                return false;
            }
        }
        return true;
    }

    void resolve(QVector<Condition> &conditions, bool isFollowed = true)
    {
        const auto wrong = std::remove_if(
            conditions.begin(), conditions.end(),
            [this, isFollowed](Condition &condition) { return !resolve(condition, isFollowed); });
        conditions.erase(wrong, conditions.end());
    }

    void resolve(std::optional<MovingLimit> &limit)
    {
        if (!limit)
            return;
        bool ok = limit->of.name.isEmpty() || find(limit->of);
        for (FeatureReference &reference : limit->minus)
            ok = find(reference) && ok;
        if (!ok)
            limit.reset();
    }

    void resolveSelection(FeatureRules &rules)
    {
        if (rules.selectedBy.name.isEmpty() || !find(rules.selectedBy))
            return;
        for (auto it = rules.selectedTexts.cbegin(); it != rules.selectedTexts.cend(); ++it) {
            bool ok = false;
            const qint64 value = valueOf(rules.selectedBy.id, it.key(), &ok);
            if (ok)
                rules.selectedValues.insert(value, it.value());
            else
                report(QStringLiteral("\"%1\" is no value of \"%2\"")
                           .arg(it.key(), rules.selectedBy.name));
        }
        // The texts have served; what is kept is small.
        rules.selectedTexts.clear();
    }

    /// What an effect sets has to be a value of the feature that it sets.
    bool hasRightValue(const Activity &activity)
    {
        const QString key = QStringLiteral("value");
        const int target = m_description.findFrom(
            m_id, activity.parameters.value(QLatin1String("feature")).toString());
        if (activity.kind == QLatin1String("latch") || target < 0)
            return true;
        try {
            readValue(activity.parameters.value(key), key, m_description.feature(target));
            return true;
        } catch (const BadEntry &bad) {
            report(bad.what());
            return false;
        }
    }

    /// Drops an activity of a kind that no device knows, or one that names unknown features.
    void checkActivity(Activity &activity, const QStringList &kinds)
    {
        if (activity.kind.isEmpty())
            return;
        QStringList names =
            activity.parameters.value(QLatin1String("counts")).toVariant().toStringList();
        QStringList keys {QStringLiteral("feature"), QStringLiteral("moves"),
                          QStringLiteral("lower"), QStringLiteral("upper"),
                          QStringLiteral("target")};
        if (activity.kind == QLatin1String("latch"))
            keys.append(QStringLiteral("value"));
        for (const QString &key : qAsConst(keys)) {
            if (activity.parameters.contains(key))
                names.append(activity.parameters.value(key).toString());
        }
        bool isRight = kinds.contains(activity.kind);
        if (!isRight)
            report(QStringLiteral("nothing is known of the kind \"%1\"").arg(activity.kind));
        for (const QString &name : qAsConst(names)) {
            FeatureReference reference;
            reference.name = name;
            isRight = find(reference, false) && isRight;
        }
        isRight = isRight && hasRightValue(activity);
        if (!isRight)
            activity = {};
    }

    DeviceDescription &m_description;
    int m_id = -1;
};

} // namespace

QStringList resolveReferences(DeviceDescription &description)
{
    Resolver resolver(description);
    for (int id = 0; id < description.size(); ++id)
        resolver.resolve(id);
    return resolver.problems;
}

} // namespace Simulation
