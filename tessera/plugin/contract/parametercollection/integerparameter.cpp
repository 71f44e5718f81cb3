// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "integerparameter.h"

namespace ParameterCollection {

IIntegerParameter::IIntegerParameter(QObject *parent)
    : IParameter(parent)
{
}

IIntegerParameter::~IIntegerParameter() = default;

} // namespace ParameterCollection
