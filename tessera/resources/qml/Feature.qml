// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import Corvane.Controls 1.0

// The chip of one feature of a user tab: its name, and a button that takes it out.
Rectangle {
    id: feature

    property alias button: removeButton
    property alias text: label.text
    property real scaling: 1
    property real maximumWidth: Infinity

    width: (20 + 5) * scaling + label.width + 5 * scaling
    height: 5 * scaling + label.height + 5 * scaling
    color: systemPalette.button

    SystemPalette {
        id: systemPalette
    }

    RowLayout {
        anchors.verticalCenter: parent.verticalCenter
        spacing: 5 * feature.scaling

        Button {
            id: removeButton

            objectName: "removeButton"
            Layout.minimumWidth: 20 * feature.scaling
            Layout.maximumWidth: 20 * feature.scaling
            Layout.preferredHeight: feature.height
            flat: true
            background: null
            padding: 0
            contentItem: Item {
                Image {
                    anchors.centerIn: parent
                    anchors.horizontalCenterOffset: 5 * feature.scaling
                    width: 10 * feature.scaling
                    height: 10 * feature.scaling
                    sourceSize.width: width
                    sourceSize.height: height
                    source: "image://standardIcons/SP_TitleBarCloseButton"
                }
            }
            Accessible.name: qsTr("Remove %1").arg(label.text)

            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
        }

        Label {
            id: label

            Layout.alignment: Qt.AlignLeft
            Layout.maximumWidth: feature.maximumWidth - (20 + 5 + 5) * feature.scaling
            Layout.bottomMargin: 2 * feature.scaling
            font.family: Styling.font__Segoe_UI
            font.pixelSize: Styling.font__Default_Size
            color: systemPalette.buttonText
            elide: Text.ElideRight
        }
    }

    FocusRing {
        anchors.fill: parent
        visible: removeButton.visualFocus
    }
}
