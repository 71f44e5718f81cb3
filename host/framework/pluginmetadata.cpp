// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "pluginmetadata.h"

#include "plugin/contract/core/plugin.h"
#include "plugincatalogue.h"
#include "pluginerror.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

namespace Host {

namespace {

QJsonObject readObject(const QPluginLoader &loader)
{
    const QString path = loader.fileName();
    if (path.isEmpty() || !QFileInfo(path).isFile()) {
        throw PluginError(path, QStringLiteral("there is no such file."));
    }
    const QJsonObject object = loader.metaData();
    if (object.isEmpty()) {
        throw PluginError(path, QStringLiteral("the file is no Qt plug-in."));
    }
    const QString iid = object.value(QLatin1String("IID")).toString();
    if (iid != QLatin1String(VANTREL_PLUGIN_IID)) {
        throw PluginError(path,
                          QStringLiteral("its interface id is \"%1\" where \"%2\" is wanted.")
                              .arg(iid, QStringLiteral(VANTREL_PLUGIN_IID)));
    }
    return object.value(QLatin1String("MetaData")).toObject();
}

QString nameIn(const QJsonObject &object, const QString &path)
{
    QString name = object.value(QLatin1String("Name")).toString();
    if (name.isEmpty()) {
        throw PluginError(path, QStringLiteral("its metadata has no \"Name\"."));
    }
    return name;
}

QVersionNumber versionIn(const QJsonObject &object, const QString &path, const QString &of)
{
    auto version = QVersionNumber::fromString(object.value(QLatin1String("Version")).toString());
    if (version.isNull()) {
        throw PluginError(path, QStringLiteral("its metadata has no \"Version\" of %1.").arg(of));
    }
    return version;
}

} // namespace

PluginMetaData PluginMetaData::read(const QPluginLoader &loader)
{
    const QString path = loader.fileName();
    const QJsonObject object = readObject(loader);
    PluginMetaData result;
    result.name = nameIn(object, path);
    result.version = versionIn(object, path, result.name);
    const QJsonArray rows = object.value(QLatin1String("Dependencies")).toArray();
    for (const auto &row : rows) {
        const QString name = nameIn(row.toObject(), path);
        result.dependencies.append({name, versionIn(row.toObject(), path, name)});
    }
    return result;
}

void PluginMetaData::requireDependencies(const PluginCatalogue &catalogue,
                                         const QString &path) const
{
    for (const Dependency &dependency : dependencies) {
        const QVersionNumber present = catalogue.version(dependency.name);
        if (present.isNull()) {
            throw PluginError(path,
                              QStringLiteral("it needs \"%1\" %2, which is not there.")
                                  .arg(dependency.name, dependency.version.toString()));
        }
        if (present < dependency.version) {
            throw PluginError(
                path,
                QStringLiteral("it needs \"%1\" %2, and %3 is there.")
                    .arg(dependency.name, dependency.version.toString(), present.toString()));
        }
    }
}

} // namespace Host
