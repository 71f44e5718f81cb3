// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "commandparameter.h"

namespace ParameterCollection {

ICommandParameter::ICommandParameter(QObject *parent)
    : IParameter(parent)
{
}

ICommandParameter::~ICommandParameter() = default;

} // namespace ParameterCollection
