// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "parameteranddata.h"

#include "plugin/contract/parametercollection/parametertype.h"

class QString;

/// The snapshot of `pair` as its own class, or null where it is missing or of another type.
template<typename Data>
QSharedPointer<const Data> snapshotOf(const ParameterAndData &pair,
                                      ParameterCollection::ParameterType type)
{
    if (!pair.data || pair.data->type != type) {
        return {};
    }
    return pair.data.dynamicCast<const Data>();
}

/// The short name of the parameter for log entries; empty where there is none to ask.
QString nameOf(const ParameterAndData &pair);
