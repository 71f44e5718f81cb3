// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/genapi/visibility.h"
#include "plugin/contract/hostexport.h"
#include "plugin/contract/parametercollection/parameterdata.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace ParameterCollection {

class IParameterNode;

/// One parameter of a collection: a feature of a camera, a setting of a stream, a category.
///
/// A collection hands out one object per full name and keeps it for its life. After the source
/// was unplugged the object stays alive, `isNull()` turns true, reads and writes throw and nothing
/// is signalled; opening the source again revives the same object.
///
/// Everything that reaches the device may throw `GenICam::GenericException`, `std::exception`,
/// `Core::Exception::BaseException` or something else. All calls come from the GUI thread.
///
/// A write goes to the device; then the parameter and whatever depends on it are read again and
/// published, one final snapshot for each, before the call returns. A refused write throws and
/// publishes the unchanged snapshot too, so that every editor falls back to it. A backend over a
/// wire may publish later, through the event loop: callers do not rely on the publication having
/// come when `refresh`, `setValue` or `execute` returns.
class VANTREL_HOST_EXPORT IParameter : public QObject
{
    Q_OBJECT

public:
    explicit IParameter(QObject *parent = nullptr);
    ~IParameter() override;

    /// Writes the value given as text. The text is byte-transparent: one character for each byte
    /// of the device's string. Numbers are taken in decimal or, for integers, hexadecimal form;
    /// switches as "1" or "0"; choices by symbolic name; and always what `valueText` showed.
    /// An empty or unreadable text for a number throws, and nothing is written.
    virtual void setFromString(const QString &value) = 0;
    /// True when the object stands for no live node.
    virtual bool isNull() const = 0;
    /// The node accepts writes now.
    virtual bool isWritable() const = 0;
    /// The feature exists on this device.
    virtual bool isImplemented() const = 0;
    /// Asked of a null parameter only: an override given by a filter file may still be stored.
    virtual bool hasFilterTarget() const = 0;
    virtual GenApi::EVisibility visibility() const = 0;
    virtual ParameterType type() const = 0;
    /// The path from the source kind on, such as "@CameraDevice/Width".
    virtual QString fullName() const = 0;
    /// The last component of the path.
    virtual QString name() const = 0;
    /// Never null while `isNull()` is false.
    virtual QSharedPointer<IParameterNode> node() const = 0;
    /// The current snapshot; never null while `isNull()` is false.
    virtual QSharedPointer<const ParameterData> parameterData() const = 0;
    /// Asks for a snapshot. With `force` one is published in any case, without it only if it
    /// differs from the last one.
    virtual void refresh(bool force) = 0;

Q_SIGNALS:
    /// A new snapshot. Emitted on the GUI thread, so that a receiver may touch widgets and models;
    /// nothing is emitted for a parameter that nobody listens to.
    void parameterDataChangedDecoupled(
        QSharedPointer<const ParameterCollection::ParameterData> parameterData);
};

} // namespace ParameterCollection
