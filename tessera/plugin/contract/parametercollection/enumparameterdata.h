// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parameterdata.h"

#include <QVector>

namespace ParameterCollection {

/// Snapshot of a choice. A `valueText` that is not among `entryNames` is legal: the device may
/// hold an entry that cannot be chosen at present.
struct VANTREL_HOST_EXPORT EnumParameterData : ParameterData
{
    EnumParameterData();
    ~EnumParameterData() override;
    EnumParameterData(const EnumParameterData &other);
    EnumParameterData &operator=(const EnumParameterData &other);

    QString currentEntry; ///< the library's own text; the symbolic name shown is `valueText`
    QVector<QString> entryNames; ///< symbolic names of the entries that can be chosen now
    QVector<QString> entryDisplayNames; ///< their display texts, index by index
};

} // namespace ParameterCollection
