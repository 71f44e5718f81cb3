// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "booleanparameter.h"

namespace ParameterCollection {

IBooleanParameter::IBooleanParameter(QObject *parent)
    : IParameter(parent)
{
}

IBooleanParameter::~IBooleanParameter() = default;

} // namespace ParameterCollection
