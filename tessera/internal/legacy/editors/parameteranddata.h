// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameterdata.h"

#include <QSharedPointer>

namespace ParameterCollection {
class IParameter;
}

/// A state of a parameter as editors take it: the parameter that lives on, and what was known of it
/// at one moment.
struct ParameterAndData
{
    QSharedPointer<ParameterCollection::IParameter> parameter;
    QSharedPointer<const ParameterCollection::ParameterData> data; ///< may be null
};
