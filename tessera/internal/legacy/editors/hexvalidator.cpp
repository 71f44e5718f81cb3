// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "hexvalidator.h"

HexValidator::HexValidator(int minimum, int maximum, QObject *parent)
    : QIntValidator(minimum, maximum, parent)
{
}

HexValidator::~HexValidator() = default;

QValidator::State HexValidator::validate(QString &input, int &pos) const
{
    const QLatin1String prefix("0x");
    if (input.isEmpty() || input.trimmed() == prefix) {
        return Intermediate;
    }
    bool isNumber = false;
    const int number = input.toInt(&isNumber, input.startsWith(prefix) ? 16 : 10);
    if (!isNumber) {
        return Invalid;
    }
    QString decimal = QString::number(number);
    return QIntValidator::validate(decimal, pos);
}
