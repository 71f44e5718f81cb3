// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/value.h"

#include <QJsonValue>
#include <QString>

namespace Simulation {

/// What is wrong with one entry of a description; the entry is reported and left out.
class BadEntry
{
public:
    explicit BadEntry(const QString &what);
    QString what() const;

private:
    QString m_what;
};

/// The integer in `value`: a number, true or false, or text in decimal or "0x" form for the whole
/// of 64 bit. Throws `BadEntry` naming `key` where it is none.
qint64 integerFromJson(const QJsonValue &value, const QString &key);
/// The number in `value`, a number or text. Throws `BadEntry`.
double numberFromJson(const QJsonValue &value, const QString &key);
/// The text of a string, number or truth value, as conditions and selectors name values.
QString textFromJson(const QJsonValue &value);
/// An integer from decimal or "0x" text of up to 64 bit; `ok` tells whether it was one.
qint64 integerFromText(const QString &text, bool *ok);

} // namespace Simulation
