// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "jsonvalues.h"

#include <cmath>

namespace Simulation {

BadEntry::BadEntry(const QString &what)
    : m_what(what)
{
}

QString BadEntry::what() const
{
    return m_what;
}

qint64 integerFromText(const QString &text, bool *ok)
{
    const QString digits = text.trimmed();
    if (digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        return static_cast<qint64>(digits.midRef(2).toULongLong(ok, 16));
    return digits.toLongLong(ok, 10);
}

qint64 integerFromJson(const QJsonValue &value, const QString &key)
{
    if (value.isBool())
        return value.toBool() ? 1 : 0;
    bool ok = false;
    qint64 integer = 0;
    if (value.isDouble()) {
        // Beyond 53 bits a JSON number may be rounded; such values are given as text.
        ok = value.toDouble() == std::floor(value.toDouble());
        integer = value.toVariant().toLongLong();
    } else {
        integer = integerFromText(value.toString(), &ok);
    }
    if (!ok)
        throw BadEntry(QStringLiteral("\"%1\" is no integer").arg(key));
    return integer;
}

double numberFromJson(const QJsonValue &value, const QString &key)
{
    bool ok = value.isDouble();
    const double number = ok ? value.toDouble() : value.toString().toDouble(&ok);
    if (!ok)
        throw BadEntry(QStringLiteral("\"%1\" is no number").arg(key));
    return number;
}

QString textFromJson(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    return value.toVariant().toString();
}

} // namespace Simulation
