// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "styling.h"

#include "plugin/contract/viewer/stylehelper.h"

#include <QCoreApplication>
#include <QQmlEngine>

namespace Host {

Styling::Styling(QObject *parent)
    : QObject(parent)
{
}

Styling::~Styling() = default;

QString Styling::fontFamily() const
{
    return QStringLiteral("Segoe UI");
}

int Styling::fontPixelSize() const
{
    constexpr int pointSize = 12;
    return CStyleHelper::computePixelFontSize(pointSize);
}

} // namespace Host

static void registerControlsModule()
{
    qmlRegisterSingletonType<Host::Styling>(
        "Corvane.Controls", 1, 0, "Styling",
        [](QQmlEngine *, QJSEngine *) -> QObject * { return new Host::Styling; });
}

Q_COREAPP_STARTUP_FUNCTION(registerControlsModule)
