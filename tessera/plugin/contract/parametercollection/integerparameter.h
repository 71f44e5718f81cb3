// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

namespace ParameterCollection {

/// A whole number of 64 bit. Its snapshots are `IntegerParameterData`.
class VANTREL_HOST_EXPORT IIntegerParameter : public IParameter
{
    Q_OBJECT

public:
    explicit IIntegerParameter(QObject *parent = nullptr);
    ~IIntegerParameter() override;

    /// Writes `value`. With `verify` the device checks limits and increment and throws
    /// `GenICam::InvalidArgumentException` where they are not kept.
    virtual void setValue(qint64 value, bool verify) = 0;
    virtual qint64 value() const = 0;
};

} // namespace ParameterCollection
