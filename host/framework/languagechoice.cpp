// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "languagechoice.h"

#include "plugin/contract/core/languagehelper.h"

#include <QLocale>
#include <QSettings>

#include <algorithm>

namespace Host::LanguageChoice {

namespace {

QString settingsKey()
{
    return QStringLiteral("VantrelViewer/Language");
}

QString &overridingCode()
{
    static QString code;
    return code;
}

QString codeOfSystem()
{
    const QStringList locales = QLocale::system().uiLanguages();
    for (const QString &locale : locales) {
        QString code = locale.left(2).toLower();
        if (isKnown(code)) {
            return code;
        }
    }
    return QStringLiteral("en");
}

} // namespace

QVector<Language> languages()
{
    return {{QStringLiteral("en"), QStringLiteral("English")},
            {QStringLiteral("ja"), QStringLiteral("日本語")},
            {QStringLiteral("zh"), QStringLiteral("中文")},
            {QStringLiteral("ko"), QStringLiteral("한국어")}};
}

bool isKnown(const QString &code)
{
    const QVector<Language> known = languages();
    return std::any_of(known.begin(), known.end(),
                       [&code](const Language &language) { return language.code == code; });
}

QString current()
{
    if (!overridingCode().isEmpty()) {
        return overridingCode();
    }
    const QString code = stored();
    return code.isEmpty() ? codeOfSystem() : code;
}

QString stored()
{
    const QString code = QSettings().value(settingsKey()).toString();
    return isKnown(code) ? code : QString();
}

bool store(const QString &code)
{
    if (!isKnown(code)) {
        return false;
    }
    QSettings().setValue(settingsKey(), code);
    return true;
}

bool setOverride(const QString &code)
{
    if (!code.isEmpty() && !isKnown(code)) {
        return false;
    }
    overridingCode() = code;
    return true;
}

} // namespace Host::LanguageChoice

QString LanguageHelper::loadLanguageId()
{
    return Host::LanguageChoice::current();
}
