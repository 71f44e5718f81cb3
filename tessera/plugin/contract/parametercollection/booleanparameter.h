// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameter.h"

namespace ParameterCollection {

/// A switch. Its snapshots are `BooleanParameterData`; it is written by `setFromString`.
class VANTREL_HOST_EXPORT IBooleanParameter : public IParameter
{
    Q_OBJECT

public:
    explicit IBooleanParameter(QObject *parent = nullptr);
    ~IBooleanParameter() override;
};

} // namespace ParameterCollection
