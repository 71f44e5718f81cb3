// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/commandparameter.h"

#include "host/simulation/parameters/typedparameter.h"

namespace Simulation {

/// An action of the device. Given as text, "1" starts it.
// Its base is a template, so its meta object is that of the interface.
class CommandParameter final // clazy:exclude=missing-qobject-macro
    : public TypedParameter<ParameterCollection::ICommandParameter>
{
public:
    using TypedParameter::TypedParameter;

    void setFromString(const QString &value) override;
    void execute(bool verify) override;
};

} // namespace Simulation
