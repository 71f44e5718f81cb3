// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "qtmessages.h"
#include "viewerapplication.h"

#include <host/framework/languagechoice.h>
#include <host/framework/quick.h>
#include <plugin/contract/core/baseexception.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTextStream>
#include <QTranslator>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iterator>

namespace {

/// What a start ends with that could not be done as asked.
constexpr int exitRefused = 2;

void complain(const QString &message)
{
    QTextStream(stderr) << QStringLiteral("tessera-viewer: %1\n").arg(message);
}

QStringList argumentList(int argc, char *argv[])
{
    QStringList arguments;
    std::transform(argv, argv + argc, std::back_inserter(arguments),
                   [](const char *argument) { return QString::fromLocal8Bit(argument); });
    return arguments;
}

/// Chooses the platform before Qt does. A run that prints needs no screen, and shall not touch the
/// user's clipboard; a run that saves a picture takes a screen if there is one.
bool choosePlatform(const Viewer::Options &options, bool needsNoWindow)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        return true;
    }
    const bool hasScreen =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const bool onlyPrints = options.printFeatures && options.screenshot.isEmpty();
    if (onlyPrints || needsNoWindow || (!hasScreen && options.runsUnattended())) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    return hasScreen;
}

void useSettingsFolder(const QString &folder)
{
    if (!folder.isEmpty()) {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    }
}

void installQtTranslation(const QString &language)
{
    auto *translator = new QTranslator(qApp);
    if (translator->load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(translator);
    }
}

int run(const Viewer::Options &options)
{
    useSettingsFolder(options.settings);
    if (!options.language.isEmpty()) {
        Host::LanguageChoice::setOverride(options.language);
    }
    installQtTranslation(Host::LanguageChoice::current());
    Host::prepareQuick();

    Viewer::ViewerApplication viewer(options);
    QObject::connect(
        &viewer, &Viewer::ViewerApplication::finished, qApp,
        [](int exitCode) { QCoreApplication::exit(exitCode); }, Qt::QueuedConnection);
    try {
        viewer.start(QCoreApplication::applicationDirPath()
                     + QStringLiteral("/../" TESSERA_PLUGIN_DIR));
    } catch (const std::exception &e) {
        complain(QString::fromUtf8(e.what()));
        return exitRefused;
    } catch (const Core::Exception::BaseException &e) {
        complain(QString::fromUtf8(e.what()));
        return exitRefused;
    }
    const int exitCode = QApplication::exec();
    viewer.shutDown();
    return exitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    Viewer::sendQtMessagesToLog();
    // Before any plug-in: their settings lie under these names.
    QCoreApplication::setOrganizationName(QStringLiteral("Tessera"));
    QCoreApplication::setApplicationName(QStringLiteral("tessera-viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSERA_VERSION));
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);

    Viewer::CommandLine commandLine;
    Viewer::Options options;
    try {
        options = commandLine.parse(argumentList(argc, argv));
    } catch (const Viewer::CommandLineError &e) {
        complain(QString::fromUtf8(e.what()));
        return exitRefused;
    }
    const bool onlyText = commandLine.wantsHelp() || commandLine.wantsVersion();
    if (!choosePlatform(options, onlyText)) {
        complain(QStringLiteral("there is no screen: neither DISPLAY nor WAYLAND_DISPLAY is set"));
        return exitRefused;
    }

    const QApplication application(argc, argv);
    if (onlyText) {
        QTextStream(stdout) << (commandLine.wantsHelp()
                                    ? commandLine.helpText()
                                    : QStringLiteral("tessera-viewer " TESSERA_VERSION "\n"));
        return EXIT_SUCCESS;
    }
    return run(options);
}
