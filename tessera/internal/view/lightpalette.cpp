// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "lightpalette.h"

#include <QApplication>

QPalette lightPalette()
{
    QPalette light(QColor(0xef, 0xef, 0xef));
    const QPalette system = QApplication::palette();
    for (const QPalette::ColorGroup group :
         {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = group == QPalette::Disabled ? QColor(0x78, 0x78, 0x78) : Qt::black;
        for (const QPalette::ColorRole role :
             {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
            light.setColor(group, role, text);
        }
        light.setColor(group, QPalette::Base, Qt::white);
        light.setColor(group, QPalette::Midlight, QColor(0xca, 0xca, 0xca)); // lines
        light.setColor(group, QPalette::Window, Qt::white);
        light.setColor(group, QPalette::Highlight, system.color(group, QPalette::Highlight));
        light.setColor(group, QPalette::HighlightedText,
                       system.color(group, QPalette::HighlightedText));
    }
    // A locked editor looks locked.
    light.setColor(QPalette::Disabled, QPalette::Base, QColor(0xef, 0xef, 0xef));
    return light;
}

bool isSystemDark()
{
    const QPalette system = QApplication::palette();
    return system.color(QPalette::Button).lightness() < 128
        || system.color(QPalette::Text).lightness() >= 128;
}

QString lightStyleColour(QPalette::ColorRole role, const char *name)
{
    return isSystemDark() ? lightPalette().color(role).name()
                          : QStringLiteral("palette(%1)").arg(QLatin1String(name));
}
