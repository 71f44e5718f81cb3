// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIntValidator>

/// Judges an integer that may be written in hexadecimal, with "0x", or in decimal, by its value.
class HexValidator final : public QIntValidator
{
    Q_OBJECT

public:
    HexValidator(int minimum, int maximum, QObject *parent);
    ~HexValidator() override;

    /// Changes neither text nor position.
    QValidator::State validate(QString &input, int &pos) const override;
};
