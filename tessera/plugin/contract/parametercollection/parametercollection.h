// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

namespace ParameterCollection {

class IParameter;

/// All parameters of one source: one or more trees, each under a path that starts with "@".
///
/// Paths are flat: the features of "@CameraDevice" are "@CameraDevice/Width" and so on, whatever
/// category they stand in; "@CameraDevice/Root" is the category that lists the top ones.
/// A collection is used on the GUI thread only and lives as long as its source record.
class VANTREL_HOST_EXPORT IParameterCollection : public QObject
{
    Q_OBJECT

public:
    explicit IParameterCollection(QObject *parent = nullptr);
    ~IParameterCollection() override;

    /// The parameter at that path: the same object for each call. Null for an unknown path. The
    /// result must be asked for `isNull()` too.
    virtual QSharedPointer<IParameter> parameter(const QString &fullName) = 0;
    /// True when `parameter` would find something, "/Alias" companions included.
    virtual bool contains(const QString &fullName) const = 0;
    /// The trees attached so far, in the order of their attachment.
    virtual QStringList attachedParameterPaths() const = 0;
    /// The full paths of the direct children of a category, in the order of the device. Empty for
    /// a feature or an unknown path. Companions are no children. `reserved` is 0 and `flag` true.
    virtual QStringList children(const QString &parentFullName, int reserved, bool flag) const = 0;
    /// Brings all nodes up to date and publishes those that changed.
    virtual void endBatchUpdate() = 0;
    /// Lets the library re-read the features that a device wants polled; `elapsedMilliseconds` is
    /// the time since the last call. Publishes those that changed.
    virtual void poll(int elapsedMilliseconds) = 0;

Q_SIGNALS:
    /// A further tree has become available under `parameterPath`. Emitted on the GUI thread.
    void nodeMapAttached(const QString &parameterPath);
};

} // namespace ParameterCollection
