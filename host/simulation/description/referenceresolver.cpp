// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "referenceresolver.h"

#include "devicedescription.h"
#include "jsonvalues.h"

#include <algorithm>

using ParameterCollection::ParameterType;

namespace Simulation {

namespace {

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
        resolve(rules->minimum);
        resolve(rules->maximum);
        resolveSelection(*rules);
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

    void follow(int leader)
    {
        QVector<int> &dependants = m_description.feature(leader).dependants;
        if (leader != m_id && !dependants.contains(m_id))
            dependants.append(m_id);
    }

    bool find(FeatureReference &reference)
    {
        reference.id = m_description.findFrom(m_id, reference.name);
        if (reference.id < 0)
            report(QStringLiteral("there is no feature \"%1\"").arg(reference.name));
        else
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

    bool resolve(Condition &condition)
    {
        if (!find(condition.feature))
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

    void resolve(QVector<Condition> &conditions)
    {
        const auto wrong =
            std::remove_if(conditions.begin(), conditions.end(),
                           [this](Condition &condition) { return !resolve(condition); });
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
        rules.selectedTexts.clear();
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
