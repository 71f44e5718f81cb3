// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "qtmessages.h"
#include "viewerapplication.h"
#include "viewertranslation.h"

#include <host/framework/guardedcall.h>
#include <host/framework/languagechoice.h>
#include <host/framework/quick.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPalette>
#include <QSettings>
#include <QTextStream>

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

/// Throws `CommandLineError` for a folder in which nothing could be kept.
void useSettingsFolder(const QString &folder)
{
    if (!folder.isEmpty()) {
        if (!QDir().mkpath(folder) || !QFileInfo(folder).isWritable()) {
            throw Viewer::CommandLineError(
                QStringLiteral("settings cannot be kept in \"%1\"").arg(folder));
        }
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    }
}

// What is locked is read all day: Qt's own grey for it is too pale on white.
void darkenPaleGrey()
{
    constexpr int legible = 0x80;
    QPalette palette = QApplication::palette();
    const bool isLight = palette.base().color().lightness() > legible;
    if (isLight && palette.color(QPalette::Disabled, QPalette::Text).lightness() > legible) {
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
            palette.setColor(QPalette::Disabled, role, QColor(legible, legible, legible));
        }
        QApplication::setPalette(palette);
    }
}

int run(const Viewer::Options &options)
{
    darkenPaleGrey();
    if (!options.language.isEmpty()) {
        Host::LanguageChoice::setOverride(options.language);
    }
    const Viewer::ViewerTranslation translation(Host::LanguageChoice::current());
    Host::prepareQuick();

    Viewer::ViewerApplication viewer(options);
    QObject::connect(
        &viewer, &Viewer::ViewerApplication::finished, qApp,
        [](int exitCode) { QCoreApplication::exit(exitCode); }, Qt::QueuedConnection);
    const auto failure = Host::exceptionOf([&viewer] {
        viewer.start(QCoreApplication::applicationDirPath()
                     + QStringLiteral("/../" TESSERA_PLUGIN_DIR));
    });
    if (failure) {
        complain(*failure);
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
        useSettingsFolder(options.settings);
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
