// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QObject>
#include <QString>

namespace ParameterCollection {

/// What a backend knows of a parameter besides its value: texts under exact, case-sensitive keys.
///
/// "Unit", "Description", "Tooltip" (a short description), "DocuURL", "DisplayName",
/// "Representation" (see `IntegerParameterData`), and the two overrides "Visibility" and
/// "AccessMode". All calls come from the GUI thread; any of them may throw.
class VANTREL_HOST_EXPORT IParameterNode : public QObject
{
    Q_OBJECT

public:
    explicit IParameterNode(QObject *parent = nullptr);
    ~IParameterNode() override;

    /// The text under `key`, or an empty one.
    virtual QString property(const QString &key) const = 0;
    /// The text under `key`, or `defaultValue` where the node has none.
    virtual QString property(const QString &key, const QString &defaultValue) const = 0;
    /// Drops the cached value: the next read goes to the device. A node that somebody listens to
    /// is read again and published.
    virtual void invalidate() = 0;
    /// Stores an override. "Visibility" takes Beginner, Expert, Guru, Invisible; "AccessMode" takes
    /// RO, RW, WO, NA, NI and can only narrow what the device allows. Both change `visibility()`
    /// and the flags of later snapshots.
    virtual void setProperty(const QString &key, const QString &value) = 0;
};

} // namespace ParameterCollection
