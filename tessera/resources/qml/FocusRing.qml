// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// The frame around the control that has the keyboard.
Rectangle {
    color: "transparent"
    border.width: 2
    border.color: systemPalette.highlight

    SystemPalette {
        id: systemPalette
    }
}
