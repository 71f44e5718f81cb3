// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/devicedescription.h"

#include <QSharedPointer>
#include <QString>
#include <QStringList>

class QJsonObject;
class QJsonValue;

namespace Simulation {

/// Reads the JSON description of a device, from the resources or from a disk. Files that it
/// includes are looked for beside the file that names the device.
class DescriptionReader final
{
public:
    /// The device that `fileName` describes. An entry that is wrong is reported and left out.
    /// Throws `Core::Exception::BaseException`, naming file, place and reason, for a file that
    /// cannot be read, that is no JSON or that describes no tree.
    QSharedPointer<const DeviceDescription> read(const QString &fileName);

    /// What was wrong in the file read last, one line each: "file: path in file: what".
    QStringList problems() const;

private:
    /// Where the reader stands: the file and the path within.
    struct Place
    {
        QString file;
        QString path;
    };

    void readTree(const QJsonObject &tree, const Place &place);
    void readItem(const QJsonValue &item, int parent, const Place &place);
    void readIncluded(const QString &fileName, int parent);
    void readCategoryItem(const QJsonObject &object, int parent, const Place &place);
    int add(const FeatureDescription &feature, int parent);
    void report(const Place &place, const QString &what);

    QSharedPointer<DeviceDescription> m_description;
    QString m_folder;
    QStringList m_included;
    QStringList m_problems;
};

} // namespace Simulation
