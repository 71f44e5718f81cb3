// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreeusecaseservice.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/core/languagehelper.h"
#include "plugin/contract/core/logging.h"
#include "plugin/services/pluginresources.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace Plugin::Tessera::Internal {

namespace {

constexpr const char *basicName = "Tessera - Basic"; // reserved

void logFault(const QString &text)
{
    static const quint64 category = Core::Logging::getCatId(LogCategories::UseCaseService);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category, text);
}

/// The texts of a name by language code. The first one of a language stands.
QMap<QString, QString> textsByLanguage(const QJsonArray &names)
{
    QMap<QString, QString> texts;
    for (const QJsonValue &entry : names) {
        const QJsonObject name = entry.toObject();
        const QJsonValue text = name.value(QLatin1String("Text"));
        const QJsonValue code = name.value(QLatin1String("LanguageCode"));
        if (!text.isString() || code.isUndefined()) {
            continue;
        }
        if (code.toString().isEmpty() || texts.contains(code.toString())) {
            logFault(QStringLiteral("Language code already known or broken. Dropping %1,%2")
                         .arg(code.toString(), text.toString()));
            continue;
        }
        texts.insert(code.toString(), text.toString());
    }
    return texts;
}

/// In the user's language, else in the first one by its code.
QString pickText(const QMap<QString, QString> &texts)
{
    const auto own = texts.constFind(LanguageHelper::loadLanguageId());
    if (own != texts.cend()) {
        return *own;
    }
    logFault(
        QStringLiteral("Couldn't find correct translation for usecase: %1").arg(texts.first()));
    return texts.first();
}

QStringList parameters(const QJsonValue &value)
{
    QStringList paths;
    const QJsonArray entries = value.toArray();
    for (const QJsonValue &entry : entries) {
        if (entry.toString().isEmpty()) {
            logFault(QStringLiteral("Skipping empty parameter..."));
        } else {
            paths.append(entry.toString());
        }
    }
    return paths;
}

} // namespace

CFeatureTreeUseCaseService::CFeatureTreeUseCaseService(QObject *parent)
    : IFeatureTreeUseCaseService(parent)
{
}

CFeatureTreeUseCaseService::~CFeatureTreeUseCaseService() = default;

bool CFeatureTreeUseCaseService::load()
{
    initResources();
    return loadFrom(QStringLiteral(":/tessera/usecases/"));
}

// A file with a fault ends the reading, which is meant; what was read before stays.
bool CFeatureTreeUseCaseService::loadFrom(const QString &folder)
{
    const QDir catalogue(folder);
    const QStringList files = catalogue.entryList({QStringLiteral("*.json")});
    Outcome outcome = files.isEmpty() ? Outcome::Unreadable : Outcome::Read;
    for (const QString &file : files) {
        outcome = readFile(catalogue.filePath(file));
        if (outcome != Outcome::Read) {
            break;
        }
    }
    return outcome != Outcome::Unreadable;
}

CFeatureTreeUseCaseService::Outcome CFeatureTreeUseCaseService::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.isReadable()) {
        logFault(QStringLiteral("%1 not readable").arg(path));
        return Outcome::Unreadable;
    }
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &problem);
    if (document.isNull()) {
        logFault(problem.errorString());
        return Outcome::Unreadable;
    }
    const QJsonValue useCases = document.object().value(QLatin1String("UseCases"));
    if (!useCases.isArray()) {
        logFault(QStringLiteral("UseCases has no valid content"));
        return Outcome::WithoutUseCases;
    }
    const QJsonArray entries = useCases.toArray();
    for (const QJsonValue &useCase : entries) {
        readUseCase(useCase.toObject());
    }
    return Outcome::Read;
}

void CFeatureTreeUseCaseService::readUseCase(const QJsonObject &useCase)
{
    const QJsonArray names = useCase.value(QLatin1String("Name")).toArray();
    if (names.isEmpty()) {
        logFault(QStringLiteral(
            "Name not existent or Name content is not an array. Skipping use case..."));
        return;
    }
    const QMap<QString, QString> texts = textsByLanguage(names);
    if (texts.isEmpty()) {
        logFault(QStringLiteral("No valid Name existent. Skipping use case..."));
        return;
    }
    const QString name = pickText(texts);
    QVariantMap &map = name == QLatin1String(basicName) ? m_basicUseCaseMap : m_useCaseMap;
    map.insert(name, parameters(useCase.value(QLatin1String("Parameters"))));
}

QVariantMap CFeatureTreeUseCaseService::useCaseMap()
{
    return m_useCaseMap;
}

QVariantMap CFeatureTreeUseCaseService::basicUseCaseMap()
{
    return m_basicUseCaseMap;
}

} // namespace Plugin::Tessera::Internal
