// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/stringparameterdata.h"
#include "support/fakecollection.h"

using namespace ParameterCollection;

namespace Tests {

namespace {

[[noreturn]] void refuse()
{
    throw GenICam::InvalidArgumentException("refused", __FILE__, __LINE__);
}

template<typename Data> QSharedPointer<ParameterData> number(const FakeNode &node)
{
    using Value = decltype(Data::value);
    const auto data = QSharedPointer<Data>::create();
    data->value = static_cast<Value>(node.number);
    data->minimum = static_cast<Value>(node.minimum);
    data->maximum = static_cast<Value>(
        node.minimum < node.maximum || node.maximum < node.minimum ? node.maximum : 1000000.0);
    data->increment = 1;
    data->representation = node.properties.value(QStringLiteral("Representation"));
    return data;
}

QSharedPointer<ParameterData> blank(const FakeNode &node)
{
    switch (node.type) {
    case Integer:
        return number<IntegerParameterData>(node);
    case Float:
        return number<FloatParameterData>(node);
    case Boolean: {
        const auto data = QSharedPointer<BooleanParameterData>::create();
        data->value = node.number > 0.0;
        return data;
    }
    case Command: {
        const auto data = QSharedPointer<CommandParameterData>::create();
        data->isDone = true;
        return data;
    }
    case String:
        return QSharedPointer<StringParameterData>::create();
    case Enumeration: {
        const auto data = QSharedPointer<EnumParameterData>::create();
        data->entryNames = node.entries.toVector();
        data->entryDisplayNames = data->entryNames;
        return data;
    }
    default:
        const auto data = QSharedPointer<ParameterData>::create();
        data->type = node.type;
        return data;
    }
}

} // namespace

QString FakeNode::valueText() const
{
    if (type == Integer || type == Float || type == Boolean) {
        return QString::number(number, 'g', 15);
    }
    return type == Command ? QStringLiteral("Done") : QString::fromUtf8(text);
}

QSharedPointer<ParameterData> FakeNode::snapshot() const
{
    const QSharedPointer<ParameterData> data = blank(*this);
    data->visibility = visibility;
    data->isImplemented = isImplemented;
    data->isReadable = isReadable;
    data->isWritable = isWritable;
    data->valueText = valueText();
    return data;
}

void FakeNode::publish() const
{
    send(snapshot());
}

void FakeNode::answer(const std::function<void()> &change)
{
    try {
        raise(onWrite);
        change();
    } catch (...) {
        publish();
        throw;
    }
    publish();
}

void FakeNode::store(double value)
{
    if (minimum < maximum && (value < minimum || value > maximum)) {
        refuse();
    }
    number = value;
}

void FakeNode::write(double value)
{
    writes.append(QString::number(value, 'g', 15));
    answer([&] { store(value); });
}

void FakeNode::write(const QString &value)
{
    writes.append(value);
    answer([&] {
        bool isNumber = true;
        if (type == String) {
            text = value.toLatin1();
        } else if (type == Enumeration && entries.contains(value)) {
            text = value.toUtf8();
        } else {
            const double parsed = value.toDouble(&isNumber);
            if (!isNumber || type == Enumeration) {
                refuse();
            }
            store(parsed);
        }
    });
}

} // namespace Tests
