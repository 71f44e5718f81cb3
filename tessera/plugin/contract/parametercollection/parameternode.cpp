// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parameternode.h"

namespace ParameterCollection {

IParameterNode::IParameterNode(QObject *parent)
    : QObject(parent)
{
}

IParameterNode::~IParameterNode() = default;

} // namespace ParameterCollection
