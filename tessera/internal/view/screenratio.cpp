// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "screenratio.h"

#include <QGuiApplication>
#include <QScreen>

double screenRatio()
{
    return QGuiApplication::primaryScreen()->logicalDotsPerInch() / 96.0;
}
