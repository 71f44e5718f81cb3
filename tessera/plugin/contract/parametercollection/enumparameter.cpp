// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "enumparameter.h"

namespace ParameterCollection {

IEnumParameter::IEnumParameter(QObject *parent)
    : IParameter(parent)
{
}

IEnumParameter::~IEnumParameter() = default;

} // namespace ParameterCollection
