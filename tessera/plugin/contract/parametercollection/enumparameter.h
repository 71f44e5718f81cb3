// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

namespace ParameterCollection {

/// A choice among named entries. Its snapshots are `EnumParameterData`; it is written by
/// `setFromString` with a symbolic name.
class VANTREL_HOST_EXPORT IEnumParameter : public IParameter
{
    Q_OBJECT

public:
    explicit IEnumParameter(QObject *parent = nullptr);
    ~IEnumParameter() override;
};

} // namespace ParameterCollection
