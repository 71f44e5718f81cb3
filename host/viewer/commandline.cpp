// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include <host/framework/languagechoice.h>

#include <algorithm>
#include <iterator>

namespace Viewer {

namespace {

const QStringList &visibilityNames()
{
    static const QStringList names {QStringLiteral("Beginner"), QStringLiteral("Expert"),
                                    QStringLiteral("Guru"), QStringLiteral("All")};
    return names;
}

QStringList languageCodes()
{
    const auto languages = Host::LanguageChoice::languages();
    QStringList codes;
    std::transform(languages.cbegin(), languages.cend(), std::back_inserter(codes),
                   [](const Host::Language &language) { return language.code; });
    return codes;
}

int indexOfName(const QStringList &names, const QString &name, const QString &option)
{
    const int index = names.indexOf(name);
    if (index < 0) {
        throw CommandLineError(QStringLiteral("--%1 does not know \"%2\"; it takes %3")
                                   .arg(option, name, names.join(QLatin1String(", "))));
    }
    return index;
}

} // namespace

CommandLineError::CommandLineError(const QString &message)
    : std::runtime_error(message.toStdString())
{
}

CommandLine::CommandLine()
{
    const auto option = [this](const char *name, const char *value, const char *description) {
        m_parser.addOption(QCommandLineOption(QLatin1String(name), QLatin1String(description),
                                              QString::fromLatin1(value)));
    };
    m_parser.setApplicationDescription(
        QStringLiteral("Shows and edits the features of machine-vision cameras."));
    m_parser.addHelpOption();
    m_parser.addVersionOption();
    option("source", "ID",
           "Open this source: simulated:gige, simulated:usb or "
           "simulated:workbench. May be given several times; the last one is "
           "the active one. Default: simulated:gige.");
    option("pane", "NAME", "Show this pane: All, Basic, User0, User1, User2 or User3.");
    option("select", "PATH", "Select a category or feature, such as @CameraDevice/Gain.");
    option("search", "TEXT", "Put TEXT into the search line.");
    option("use-case", "NAME", "Choose a use case by its name.");
    option("visibility", "LEVEL", "Show features up to this level: Beginner, Expert, Guru or All.");
    option("language", "CODE", "Use this language for this run: en, ja, zh or ko.");
    option("print-features", "",
           "Print all features of the active source with their values, then "
           "end.");
    option("screenshot", "FILE", "Save a picture of the window once it is painted, then end.");
    option("settings", "DIR", "Keep settings in this folder instead of the user's.");
}

Options CommandLine::parse(const QStringList &arguments)
{
    if (!m_parser.parse(arguments)) {
        throw CommandLineError(m_parser.errorText());
    }
    if (!m_parser.positionalArguments().isEmpty()) {
        throw CommandLineError(QStringLiteral("superfluous argument \"%1\"")
                                   .arg(m_parser.positionalArguments().constFirst()));
    }
    const auto value = [this](const char *name) { return m_parser.value(QLatin1String(name)); };

    Options options;
    options.sources = m_parser.values(QStringLiteral("source"));
    options.pane = value("pane");
    options.select = value("select");
    options.search = value("search");
    options.useCase = value("use-case");
    options.language = value("language");
    options.printFeatures = m_parser.isSet(QStringLiteral("print-features"));
    options.screenshot = value("screenshot");
    options.settings = value("settings");
    if (m_parser.isSet(QStringLiteral("visibility"))) {
        options.visibility =
            indexOfName(visibilityNames(), value("visibility"), QStringLiteral("visibility"));
    }
    if (m_parser.isSet(QStringLiteral("language"))) {
        indexOfName(languageCodes(), options.language, QStringLiteral("language"));
    }
    if (m_parser.isSet(QStringLiteral("screenshot")) && options.screenshot.isEmpty()) {
        throw CommandLineError(QStringLiteral("--screenshot needs a file name"));
    }
    return options;
}

bool CommandLine::wantsHelp() const
{
    return m_parser.isSet(QStringLiteral("help"));
}

bool CommandLine::wantsVersion() const
{
    return m_parser.isSet(QStringLiteral("version"));
}

QString CommandLine::helpText() const
{
    return m_parser.helpText();
}

} // namespace Viewer
