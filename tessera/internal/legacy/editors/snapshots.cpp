// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "snapshots.h"

#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/services/exceptionbarrier.h"

QString nameOf(const ParameterAndData &pair)
{
    QString name;
    if (pair.parameter) {
        Plugin::Tessera::runGuarded([&] { name = pair.parameter->name(); });
    }
    return name;
}
