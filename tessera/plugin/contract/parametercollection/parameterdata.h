// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"
#include "plugin/contract/parametercollection/parametertype.h"

#include <QMetaType>
#include <QSharedPointer>
#include <QString>

namespace ParameterCollection {

/// One snapshot of a parameter: what was known of it at one moment.
///
/// A snapshot is handed out as `QSharedPointer<const ParameterData>` and never changed after
/// that; whoever holds one replaces the pointer. The library publishes consistent snapshots only:
/// minimum <= value <= maximum, and a device that says otherwise is published as not writable.
struct VANTREL_HOST_EXPORT ParameterData
{
    ParameterData();
    virtual ~ParameterData();
    ParameterData(const ParameterData &other);
    ParameterData &operator=(const ParameterData &other);

    /// A `ParameterType`. Every derived class sets its own; a category is plain data of type 7.
    qint32 type = ParameterType::None;
    /// A `GenApi::EVisibility`.
    qint32 visibility = 99;
    bool isReadable = false; ///< the value may be read now
    bool isWritable = false; ///< the value may be written now
    bool isImplemented = false; ///< the feature exists on this device
    bool isValid = true; ///< the library's own business
    /// The value as text, ready to be shown: C locale, no unit, no group separators; the symbolic
    /// name for an enumeration, "0" or "1" for a boolean, never "1" for a command.
    QString valueText;

protected:
    explicit ParameterData(ParameterType snapshotType);
};

} // namespace ParameterCollection

Q_DECLARE_METATYPE(QSharedPointer<const ParameterCollection::ParameterData>)
