// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/devicedescription.h"

#include <QHash>
#include <QSharedPointer>
#include <QVector>

#include <set>
#include <vector>

namespace Simulation {

/// The range of a number as it is at present.
struct Limits
{
    Value minimum;
    Value maximum;
    Value increment;
};

/// The memory of a device and the rules that hold within: limits that move, locks, selectors and
/// companions. Not for several threads; the device guards it.
class DeviceState final
{
public:
    explicit DeviceState(QSharedPointer<const DeviceDescription> description);

    const DeviceDescription &description() const;
    const FeatureDescription &feature(int id) const;

    /// The value at present: of a selected feature for the selector's present value, of a
    /// companion as its float gives it.
    Value value(int id) const;
    Limits limits(int id) const;
    /// The value of a feature that hangs on a selector, for another value of that selector.
    Value selectedValue(int id, qint64 selection) const;
    bool holdAll(const QVector<Condition> &conditions) const;
    /// `number` as a value of the feature: rounded where that is an integer.
    Value numberAs(int id, double number) const;
    AccessMode access(int id) const;
    /// The numbers of the entries that can be selected at present.
    QVector<int> entries(int id) const;

    /// Puts `value` into the memory as it is, whatever the limits say.
    void store(int id, const Value &value);
    /// The same for another value of the feature's selector than the present one.
    void storeSelected(int id, qint64 selection, const Value &value);
    /// Stores `value` and pulls those whose limits moved by that into their new range.
    void change(int id, const Value &value);
    /// `value` brought into the limits of the feature and onto its steps.
    Value pulledIn(int id, const Value &value) const;

    bool isRunning(int id) const;
    void setRunning(int id, bool running);

    /// Puts the values that features of kind RW have now under `set`.
    void saveUserSet(qint64 set);
    /// Brings back what `set` holds; the values of the description where it was never saved.
    void loadUserSet(qint64 set);
    /// Brings back the values of the description.
    void reset();

    /// Numbers of the features whose value or state changed since the last call, ascending.
    QVector<int> takeChanges();

private:
    using Selection = QHash<qint64, Value>;

    /// All values of the memory.
    struct Image
    {
        std::vector<Value> values;
        QHash<int, Selection> selections; ///< of features that hang on a selector
    };

    Value limitOf(int id, const std::optional<MovingLimit> &limit, const Value &constant) const;
    bool holds(const Condition &condition) const;
    qint64 selectorValue(int id) const;
    bool belongsToUserSet(int id) const;
    void markChanged(int id);
    void settle(int id);

    QSharedPointer<const DeviceDescription> m_description;
    Image m_initial;
    Image m_image;
    QHash<qint64, Image> m_userSets;
    std::set<int> m_running;
    std::set<int> m_changed;
};

} // namespace Simulation
