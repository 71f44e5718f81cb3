// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "optionswindow.h"

#include "featureoptionsmenu.h"
#include "plugin/contract/core/platforminfo.h"
#include "standardiconprovider.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>
#include <QScreen>
#include <QUrl>

// Outside any namespace, as the macro wants it: a static library's resources are not found before.
static void initialiseScenes()
{
    Q_INIT_RESOURCE(tessera); // icons
    Q_INIT_RESOURCE(tesseraqml);
}

namespace Plugin::Tessera::Internal::View {

namespace {

constexpr double usualDotsPerInch = 96.0;
constexpr int flagsBelow = 0x0200100B;
constexpr int flagsOnTop = 0x0204100B;
static_assert(flagsBelow == (Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint)
                  && flagsOnTop == (flagsBelow | Qt::WindowStaysOnTopHint),
              "The numbers are what other windows of the application expect");

double primaryDotsPerInch()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->logicalDotsPerInch() : usualDotsPerInch;
}

} // namespace

Qt::WindowFlags optionsWindowFlags(bool staysOnTop)
{
    return {staysOnTop ? flagsOnTop : flagsBelow};
}

QSize optionsWindowSize(double dotsPerInch)
{
    constexpr double width = 350.0;
    constexpr double height = 440.0;
    const double factor = dotsPerInch / usualDotsPerInch;
    return {int(factor * width), int(factor * height)};
}

void registerOptionsWindowTypes()
{
    qmlRegisterType<CFeatureOptionsMenu>("FeatureOptionsMenu", 1, 0, "FeatureOptionsMenu");
    qmlRegisterType<Utils::PlatformInfo>("Utils", 1, 0, "PlatformInfo");
}

QQuickView *createOptionsWindow()
{
    initialiseScenes();
    auto *window = new QQuickView;
    window->engine()->addImageProvider(QStringLiteral("standardIcons"), new CStandardIconProvider);
    const QSize size = optionsWindowSize(primaryDotsPerInch());
    window->setMinimumSize(size);
    window->resize(size);
    window->setFlags(optionsWindowFlags(true));
    window->setTitle(QStringLiteral(" "));
    window->setResizeMode(QQuickView::SizeRootObjectToView);
    window->setSource(QUrl(QStringLiteral("qrc:/tessera/featuretreeoptionmenu.qml")));
    window->setVisible(false);
    return window;
}

} // namespace Plugin::Tessera::Internal::View
