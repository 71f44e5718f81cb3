// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "valuetext.h"

#include "plugin/contract/genapi/invalidargumentexception.h"

#include "host/simulation/description/featuredescription.h"
#include "host/simulation/description/jsonvalues.h"

#include <QStringList>
#include <QTextCodec>
#include <QVector>

#include <algorithm>
#include <cmath>

using ParameterCollection::ParameterType;

namespace Simulation {

namespace {

constexpr int utf8Mib = 106;

[[noreturn]] void refuse(const FeatureDescription &feature, const QString &text)
{
    const QString line =
        QStringLiteral("%1: \"%2\" is no value of this feature").arg(feature.name, text);
    throw GenICam::InvalidArgumentException(line.toStdString(), __FILE__, __LINE__);
}

/// The lowest `count` bytes of `value`, the highest first, each as text in `base`.
QString joinedBytes(qint64 value, int count, int base, QLatin1Char separator)
{
    QStringList parts;
    parts.reserve(count);
    const int width = base == 16 ? 2 : 1;
    for (int i = count - 1; i >= 0; --i) {
        const auto byte = static_cast<uint>((static_cast<quint64>(value) >> (8 * i)) & 0xFFU);
        parts.append(QStringLiteral("%1").arg(byte, width, base, QLatin1Char('0')));
    }
    return parts.join(separator);
}

/// The reverse of `joinedBytes`; `ok` turns false for anything but `count` bytes.
qint64 fromJoinedBytes(const QString &text, int count, int base, QLatin1Char separator, bool *ok)
{
    const QStringList parts = text.split(separator);
    quint64 value = 0;
    *ok = parts.size() == count;
    for (const QString &part : parts) {
        bool isByte = false;
        const uint byte = part.toUInt(&isByte, base);
        *ok = *ok && isByte && byte <= 0xFFU;
        value = (value << 8U) | byte;
    }
    return static_cast<qint64>(value);
}

qint64 integerFrom(const FeatureDescription &feature, const QString &text)
{
    bool ok = false;
    qint64 value = integerFromText(text, &ok);
    if (!ok && feature.representation == QLatin1String("IPV4Address"))
        value = fromJoinedBytes(text.trimmed(), 4, 10, QLatin1Char('.'), &ok);
    if (!ok && feature.representation == QLatin1String("MACAddress"))
        value = fromJoinedBytes(text.trimmed(), 6, 16, QLatin1Char(':'), &ok);
    if (!ok)
        refuse(feature, text);
    return value;
}

double numberFrom(const FeatureDescription &feature, const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        refuse(feature, text);
    return value;
}

QByteArray bytesFrom(const FeatureDescription &feature, const QString &text)
{
    const bool isBytes = std::all_of(text.cbegin(), text.cend(),
                                     [](QChar character) { return character.unicode() <= 0xFF; });
    if (!isBytes)
        refuse(feature, text);
    return text.toLatin1();
}

} // namespace

QString textOfInteger(qint64 value, const QString &representation)
{
    if (representation == QLatin1String("HexNumber"))
        return QStringLiteral("0x%1").arg(static_cast<quint64>(value), 0, 16);
    if (representation == QLatin1String("IPV4Address"))
        return joinedBytes(value, 4, 10, QLatin1Char('.'));
    if (representation == QLatin1String("MACAddress"))
        return joinedBytes(value, 6, 16, QLatin1Char(':'));
    if (representation == QLatin1String("Boolean"))
        return value != 0 ? QStringLiteral("1") : QStringLiteral("0");
    return QString::number(value);
}

QString textOfBytes(const QByteArray &bytes)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text =
        QTextCodec::codecForMib(utf8Mib)->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        return QString::fromLatin1(bytes);
    return text;
}

QString textOfValue(const FeatureDescription &feature, const Value &value)
{
    switch (feature.type) {
    case ParameterType::Integer:
        return textOfInteger(integerOf(value), feature.representation);
    case ParameterType::Boolean:
        return integerOf(value) != 0 ? QStringLiteral("1") : QStringLiteral("0");
    case ParameterType::Float:
        return QString::number(numberOf(value), 'f', feature.displayPrecision);
    case ParameterType::String:
        return textOfBytes(bytesOf(value));
    case ParameterType::Enumeration:
        return feature.entries.value(static_cast<int>(integerOf(value))).name;
    case ParameterType::Command:
        return QStringLiteral("0");
    default:
        return {};
    }
}

Value valueFromText(const FeatureDescription &feature, const QString &text)
{
    switch (feature.type) {
    case ParameterType::Integer:
        return integerFrom(feature, text);
    case ParameterType::Float:
        return numberFrom(feature, text);
    case ParameterType::String:
        return bytesFrom(feature, text);
    case ParameterType::Boolean:
        if (text != QLatin1String("0") && text != QLatin1String("1"))
            refuse(feature, text);
        return qint64(text == QLatin1String("1"));
    case ParameterType::Enumeration:
        if (feature.entryIndex(text) < 0)
            refuse(feature, text);
        return qint64(feature.entryIndex(text));
    default:
        refuse(feature, text);
    }
}

} // namespace Simulation
