// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "descriptionreader.h"

#include "featurereader.h"
#include "jsonvalues.h"
#include "referenceresolver.h"

#include "plugin/contract/core/baseexception.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Simulation {

namespace {

[[noreturn]] void fail(const QString &fileName, const QString &why)
{
    const QString line = QStringLiteral("%1: %2").arg(fileName, why);
    throw Core::Exception::BaseException(line.toStdString());
}

QJsonObject objectFromFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        fail(fileName, QStringLiteral("cannot be read (%1)").arg(file.errorString()));
    const QByteArray text = file.readAll();
    QJsonParseError error {};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        fail(fileName,
             QStringLiteral("line %1, offset %2: %3")
                 .arg(text.left(error.offset).count('\n') + 1)
                 .arg(error.offset)
                 .arg(error.errorString()));
    if (!document.isObject())
        fail(fileName, QStringLiteral("line 1: an object is expected"));
    return document.object();
}

DeviceInfo infoFrom(const QJsonObject &device)
{
    DeviceInfo info;
    info.displayName = device.value(QLatin1String("displayName")).toString();
    info.model = device.value(QLatin1String("model")).toString();
    info.deviceClass = device.value(QLatin1String("class")).toString();
    info.category = device.value(QLatin1String("category")).toString(info.category);
    return info;
}

QString below(const QString &path, const QString &key, int index)
{
    return QStringLiteral("%1%2%3[%4]")
        .arg(path, path.isEmpty() ? QString() : QStringLiteral("."), key)
        .arg(index);
}

} // namespace

QSharedPointer<const DeviceDescription> DescriptionReader::read(const QString &fileName)
{
    m_problems.clear();
    m_included.clear();
    m_folder = QFileInfo(fileName).path();
    m_description = QSharedPointer<DeviceDescription>::create();

    const QJsonObject object = objectFromFile(fileName);
    m_description->info = infoFrom(object.value(QLatin1String("device")).toObject());
    const QJsonArray trees = object.value(QLatin1String("trees")).toArray();
    for (int i = 0; i < trees.size(); ++i)
        readTree(trees.at(i).toObject(), {fileName, below(QString(), QStringLiteral("trees"), i)});
    if (m_description->trees().empty())
        fail(fileName, QStringLiteral("trees: describes no tree of features"));

    const QStringList unresolved = resolveReferences(*m_description);
    for (const QString &problem : unresolved)
        m_problems.append(fileName % QStringLiteral(": ") % problem);
    return std::exchange(m_description, {});
}

QStringList DescriptionReader::problems() const
{
    return m_problems;
}

void DescriptionReader::readTree(const QJsonObject &tree, const Place &place)
{
    const QString path = tree.value(QLatin1String("path")).toString();
    if (!path.startsWith(QLatin1Char('@')) || path.contains(QLatin1Char('/'))
        || m_description->find(path % QStringLiteral("/Root")) >= 0) {
        report(place, QStringLiteral("a tree needs a \"path\" of its own, such as \"@Camera\""));
        return;
    }
    const int root =
        m_description->addTree(path, tree.value(QLatin1String("attachAfterMs")).toInt());
    const QJsonArray categories = tree.value(QLatin1String("categories")).toArray();
    for (int i = 0; i < categories.size(); ++i)
        readItem(categories.at(i), root,
                 {place.file, below(place.path, QStringLiteral("categories"), i)});
}

void DescriptionReader::readItem(const QJsonValue &item, int parent, const Place &place)
{
    const QJsonObject object = item.toObject();
    try {
        if (object.contains(QLatin1String("include")))
            readIncluded(object.value(QLatin1String("include")).toString(), parent);
        else if (object.contains(QLatin1String("category")))
            readCategoryItem(object, parent, place);
        else
            add(readFeature(object), parent);
    } catch (const BadEntry &bad) {
        report(place, bad.what());
    }
}

void DescriptionReader::readIncluded(const QString &fileName, int parent)
{
    const QString path = m_folder % QLatin1Char('/') % fileName;
    // The chain of files above this one: a file may be included twice, but not within itself.
    if (m_included.contains(path))
        throw BadEntry(QStringLiteral("\"%1\" includes itself").arg(fileName));
    const QJsonObject object = objectFromFile(path);
    m_included.append(path);
    readItem(object, parent, {path, object.value(QLatin1String("category")).toString()});
    m_included.removeLast();
}

void DescriptionReader::readCategoryItem(const QJsonObject &object, int parent, const Place &place)
{
    const int category = add(readCategory(object), parent);
    const QJsonArray children = object.value(QLatin1String("children")).toArray();
    for (int i = 0; i < children.size(); ++i)
        readItem(children.at(i), category,
                 {place.file, below(place.path, QStringLiteral("children"), i)});
}

int DescriptionReader::add(const FeatureDescription &feature, int parent)
{
    const int id = m_description->addFeature(feature, parent);
    if (id < 0)
        throw BadEntry(QStringLiteral("\"%1\" stands in the tree already").arg(feature.name));
    return id;
}

void DescriptionReader::report(const Place &place, const QString &what)
{
    m_problems.append(QStringLiteral("%1: %2: %3").arg(place.file, place.path, what));
}

} // namespace Simulation
