// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "displaynamecache.h"

#include "plugin/constants/settingskeys.h"

#include <QMap>
#include <QMutex>
#include <QSettings>
#include <QStringList>

namespace {

namespace Keys = Plugin::Tessera::SettingsKeys;

struct Cache
{
    QMutex mutex;
    QMap<QString, QString> names;
};

Cache &cache()
{
    static Cache instance;
    return instance;
}

// The text format has no escapes.
bool canBeWritten(const QString &text)
{
    return !text.contains(QLatin1Char(':')) && !text.contains(QLatin1Char(';'));
}

} // namespace

void loadDisplayNameCache()
{
    Cache &store = cache();
    const QMutexLocker locker(&store.mutex);
    QSettings settings;
    settings.beginGroup(QLatin1String(Keys::Group));
    const QString text = settings.value(QLatin1String(Keys::DisplayNameCache)).toString();
    settings.endGroup();
    const QStringList entries = text.split(QLatin1Char(';'));
    for (const QString &entry : entries) {
        const QStringList pieces = entry.split(QLatin1Char(':'));
        if (pieces.size() == 2) {
            store.names.insert(pieces.first(), pieces.last());
        }
    }
}

void saveDisplayNameCache()
{
    Cache &store = cache();
    const QMutexLocker locker(&store.mutex);
    QString text;
    for (auto entry = store.names.cbegin(); entry != store.names.cend(); ++entry) {
        if (canBeWritten(entry.key()) && canBeWritten(entry.value())) {
            text += QStringLiteral("%1:%2;").arg(entry.key(), entry.value());
        }
    }
    QSettings settings;
    settings.beginGroup(QLatin1String(Keys::Group));
    settings.setValue(QLatin1String(Keys::DisplayNameCache), text);
    settings.endGroup();
}

void cacheDisplayName(const QString &fullName, const QString &displayName)
{
    Cache &store = cache();
    const QMutexLocker locker(&store.mutex);
    if (!store.names.contains(fullName)) {
        store.names.insert(fullName, displayName);
    }
}

QString cachedDisplayName(const QString &fullName)
{
    Cache &store = cache();
    const QMutexLocker locker(&store.mutex);
    return store.names.value(fullName);
}
