// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parametercollection.h"

namespace ParameterCollection {

IParameterCollection::IParameterCollection(QObject *parent)
    : QObject(parent)
{
}

IParameterCollection::~IParameterCollection() = default;

} // namespace ParameterCollection
