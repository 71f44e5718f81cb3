// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

namespace ParameterCollection {

/// An action of the device. Its snapshots are `CommandParameterData`.
class VANTREL_HOST_EXPORT ICommandParameter : public IParameter
{
    Q_OBJECT

public:
    explicit ICommandParameter(QObject *parent = nullptr);
    ~ICommandParameter() override;

    /// Starts the command and returns at once; a snapshot tells when it is done. `verify` makes the
    /// device throw where it cannot be run now.
    virtual void execute(bool verify) = 0;
};

} // namespace ParameterCollection
