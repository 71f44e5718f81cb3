// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "floatparameter.h"

namespace ParameterCollection {

IFloatParameter::IFloatParameter(QObject *parent)
    : IParameter(parent)
{
}

IFloatParameter::~IFloatParameter() = default;

} // namespace ParameterCollection
