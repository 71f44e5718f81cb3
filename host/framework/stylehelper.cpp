// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/viewer/stylehelper.h"

#include <QGuiApplication>
#include <QScreen>

int CStyleHelper::computePixelFontSize(int pointSize)
{
    constexpr double pointsPerInch = 72.0;
    constexpr double usualDotsPerInch = 96.0;
    const QScreen *screen = QGuiApplication::primaryScreen();
    const double dotsPerInch = screen != nullptr ? screen->logicalDotsPerInch() : usualDotsPerInch;
    return qRound(pointSize * dotsPerInch / pointsPerInch);
}
