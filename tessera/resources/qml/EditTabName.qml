// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Controls 2.15
import Corvane.Controls 1.0

// The row of one user tab: its name, to be edited, and the button that deletes it.
FocusScope {
    id: editTabName

    property bool isActiveItem: false
    property alias text: textField.text
    readonly property alias hasFocus: textField.activeFocus
    property alias deleteIcon: deleteImage.source
    property int tabNumber: 1
    property real scaling: 1

    // The user has finished editing the name.
    signal changed()
    signal tabDeleted()
    // The user has turned to this tab by key.
    signal chosen()

    function setActiveFocus() {
        textField.forceActiveFocus(Qt.MouseFocusReason);
    }

    implicitHeight: textField.implicitHeight

    SystemPalette {
        id: systemPalette
    }

    Rectangle {
        anchors.fill: parent
        color: editTabName.isActiveItem ? systemPalette.midlight : systemPalette.button
        border.width: 1
        border.color: editTabName.isActiveItem ? systemPalette.text : systemPalette.mid
    }

    TextField {
        id: textField

        objectName: "textField"
        focus: true
        anchors.left: parent.left
        width: parent.width - deleteButton.width - 10 * editTabName.scaling
        font.family: Styling.font__Segoe_UI
        font.pixelSize: 12 * editTabName.scaling
        padding: 6 * editTabName.scaling
        color: systemPalette.text
        placeholderText: qsTr("New feature tab")
        placeholderTextColor: Qt.rgba(color.r, color.g, color.b, 0.65)
        selectionColor: systemPalette.highlight
        selectedTextColor: systemPalette.highlightedText
        selectByMouse: true
        background: null
        Accessible.name: qsTr("Name of feature tab %1").arg(editTabName.tabNumber)

        onTextEdited: editTabName.chosen()
        onAccepted: editTabName.chosen()
        onEditingFinished: editTabName.changed()
    }

    Button {
        id: deleteButton

        objectName: "deleteButton"
        anchors.right: parent.right
        anchors.verticalCenter: textField.verticalCenter
        width: 24 * editTabName.scaling
        height: textField.height
        padding: 0
        background: null
        contentItem: Item {
            Image {
                id: deleteImage

                anchors.centerIn: parent
                sourceSize.width: 16 * editTabName.scaling
                sourceSize.height: 16 * editTabName.scaling
            }
        }
        Accessible.name: qsTr("Delete feature tab %1").arg(editTabName.tabNumber)

        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: editTabName.tabDeleted()
    }

    FocusRing {
        anchors.fill: parent
        visible: textField.activeFocus
    }

    FocusRing {
        anchors.fill: deleteButton
        visible: deleteButton.visualFocus
    }
}
