// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parameter.h"

namespace ParameterCollection {

IParameter::IParameter(QObject *parent)
    : QObject(parent)
{
}

IParameter::~IParameter() = default;

} // namespace ParameterCollection
