// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomElement>
#include <QFile>
#include <QString>

namespace ParameterCollection {
class IParameterCollection;
}

/// A file that overrides the visibility and the access of single nodes of a camera: one element for
/// each node, with its path in "Name" and what is overridden in "Visibility" and "AccessMode".
///
/// The first of these is used, from the folder of the application or the host's resources: the file
/// for the model and the kind of tree, the one for the kind of tree, "Default_Filter.xml".
class FilterFile final
{
public:
    /// `deviceText` is the model of the device, `roleName` the path under which a tree is attached.
    FilterFile(QString deviceText, const QString &roleName);

    /// The names of the files in the order in which they are looked for.
    QStringList names() const;
    /// Sets what the file says on the nodes of `collection`. False, with a log entry, when no file
    /// could be read. A mistake in the file or an exception of a node is logged and passed over.
    bool apply(ParameterCollection::IParameterCollection &collection) const;

private:
    bool open(QFile &file) const;

    QString m_deviceText;
    QString m_role; // "CameraDevice_", or empty
};
