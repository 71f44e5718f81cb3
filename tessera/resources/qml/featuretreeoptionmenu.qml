// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import QtQuick.Shapes 1.15
import QtQuick.Window 2.15
import Corvane.Controls 1.0
import FeatureOptionsMenu 1.0
import Utils 1.0

// The window Edit Feature Tabs: the names of the user tabs, below them an area that takes features
// dragged from a table, and the features of the tab that is edited.
FeatureOptionsMenu {
    id: optionsMenu

    readonly property bool userTabIsSelected: userTabIndex !== -1
    // Sizes are pixels at 96 dots per inch times this.
    readonly property real scaling: Screen.logicalPixelDensity > 0
                                    ? Math.round(Screen.logicalPixelDensity * 25.4) / 96 : 1
    readonly property real sideMargin: 16 * scaling

    signal nameChanged(int userTabIndex, string name)
    signal cancel()
    signal add()
    signal remove(int userTabIndex)
    signal addFeature(int userTabIndex, string featureFullName)
    signal removeFeature(int userTabIndex, string featureFullName)
    signal newFeatureNameList(int userTabIndex)
    signal hide()

    // The text beside the source may come from anywhere, so the source must be one of our tables.
    function takes(drop) {
        return userTabIsSelected && drop.source && drop.source.objectName === "tesseraTableView";
    }

    function faded(color, opacity) {
        return Qt.rgba(color.r, color.g, color.b, opacity);
    }

    objectName: "_optionsMenu"
    anchors.fill: parent

    component DialogButton: Button {
        id: dialogButton

        property color color
        property color borderColor

        Layout.fillWidth: true
        Layout.preferredHeight: 32 * optionsMenu.scaling
        Layout.maximumHeight: 32 * optionsMenu.scaling
        padding: 0
        font.family: Styling.font__Segoe_UI
        font.pixelSize: Styling.font__Default_Size
        background: Rectangle {
            color: dialogButton.down ? Qt.darker(dialogButton.color, 1.1) : dialogButton.color
            border.width: 1
            border.color: dialogButton.borderColor
        }
        contentItem: Text {
            text: dialogButton.text
            font: dialogButton.font
            fontSizeMode: Text.Fit
            color: systemPalette.buttonText
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
        Accessible.name: text

        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()

        FocusRing {
            anchors.fill: parent
            visible: dialogButton.visualFocus
        }
    }

    PlatformInfo {
        id: platformInfo
    }

    SystemPalette {
        id: systemPalette
    }

    Shortcut {
        sequence: "Escape"
        onActivated: {
            // A name half typed is taken first, so that it is reverted with the others.
            if (editTabNameListView.currentItem) {
                editTabNameListView.currentItem.changed();
            }
            optionsMenu.cancel();
        }
    }

    Rectangle {
        anchors.fill: parent
        color: systemPalette.base
    }

    ColumnLayout {
        anchors.fill: parent

        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: optionsMenu.sideMargin
            Layout.rightMargin: optionsMenu.sideMargin

            Text {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.minimumHeight: 25 * optionsMenu.scaling
                text: qsTr("Edit Feature Tabs")
                font.bold: true
                font.family: Styling.font__Segoe_UI
                font.pixelSize: Styling.font__Default_Size
                color: systemPalette.text
                elide: Text.ElideRight
                verticalAlignment: Text.AlignVCenter
            }

            Button {
                id: closeButton

                objectName: "closeButton"
                Layout.minimumWidth: 19 * optionsMenu.scaling
                Layout.minimumHeight: 25 * optionsMenu.scaling
                visible: platformInfo.isWindows
                flat: true
                background: Rectangle {
                    color: systemPalette.base

                    Image {
                        anchors.top: parent.top
                        anchors.right: parent.right
                        width: 19 * optionsMenu.scaling
                        height: 19 * optionsMenu.scaling
                        sourceSize.width: width
                        sourceSize.height: height
                        source: "image://standardIcons/SP_TitleBarCloseButton"
                    }
                }
                Accessible.name: qsTr("Close")

                onClicked: optionsMenu.hide()

                FocusRing {
                    anchors.fill: parent
                    visible: closeButton.visualFocus
                }
            }
        }

        ListView {
            id: editTabNameListView

            objectName: "editTabNameListView"
            Layout.fillWidth: true
            Layout.leftMargin: optionsMenu.sideMargin
            Layout.rightMargin: optionsMenu.sideMargin
            Layout.preferredHeight: contentHeight
            spacing: 2
            focus: true
            interactive: false
            // By number: a rename must not make the rows, and with them the focus, anew.
            model: optionsMenu.supportedUserTabCount
            currentIndex: optionsMenu.userTabIndex

            Keys.onUpPressed: optionsMenu.userTabIndex = Math.max(0, currentIndex - 1)
            Keys.onDownPressed: optionsMenu.userTabIndex = Math.min(count - 1, currentIndex + 1)

            delegate: EditTabName {
                id: row

                readonly property string tabName: optionsMenu.userTabNames[index]

                objectName: "editTabName" + index
                width: editTabNameListView.width
                isActiveItem: index === optionsMenu.userTabIndex
                deleteIcon: isActiveItem ? optionsMenu.deleteIconUrl
                                         : optionsMenu.deleteIconDisabledUrl
                tabNumber: index + 1
                scaling: optionsMenu.scaling

                Component.onCompleted: text = tabName
                onTabNameChanged: if (text !== tabName) text = tabName
                onIsActiveItemChanged: if (isActiveItem) setActiveFocus()
                onChosen: optionsMenu.userTabIndex = index
                onChanged: if (text !== tabName) optionsMenu.nameChanged(index, text)
                onTabDeleted: {
                    optionsMenu.userTabIndex = index;
                    optionsMenu.remove(index);
                }

                MouseArea {
                    anchors.fill: parent
                    enabled: !row.isActiveItem
                    propagateComposedEvents: true
                    onClicked: {
                        mouse.accepted = false;
                        optionsMenu.userTabIndex = index;
                    }
                }
            }
        }

        DropArea {
            id: dragAndDrop

            objectName: "dragAndDrop"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumHeight: 100 * optionsMenu.scaling
            Layout.topMargin: 35 * optionsMenu.scaling
            Layout.bottomMargin: 10 * optionsMenu.scaling
            Layout.leftMargin: optionsMenu.sideMargin
            Layout.rightMargin: optionsMenu.sideMargin

            onEntered: drag.accepted = optionsMenu.takes(drag)
            onDropped: {
                if (optionsMenu.takes(drop)) {
                    const before = features.count;
                    optionsMenu.addFeature(optionsMenu.userTabIndex, drop.text);
                    if (features.count > before) {
                        flow.revealed = features.count - 1;
                    }
                }
            }

            Shape {
                anchors.fill: parent

                ShapePath {
                    strokeColor: systemPalette.mid
                    strokeWidth: 1
                    strokeStyle: ShapePath.DashLine
                    dashPattern: [8, 8]
                    capStyle: ShapePath.RoundCap
                    fillColor: optionsMenu.userTabIsSelected && dragAndDrop.containsDrag
                               ? systemPalette.button : systemPalette.base
                    startX: 0
                    startY: 0

                    PathLine { x: dragAndDrop.width; y: 0 }
                    PathLine { x: dragAndDrop.width; y: dragAndDrop.height }
                    PathLine { x: 0; y: dragAndDrop.height }
                    PathLine { x: 0; y: 0 }
                }
            }

            Item {
                anchors.centerIn: parent
                width: parent.width
                height: dragImage.height + dragText.height

                Image {
                    id: dragImage

                    anchors.horizontalCenter: parent.horizontalCenter
                    sourceSize.width: 48 * optionsMenu.scaling
                    sourceSize.height: 48 * optionsMenu.scaling
                    source: optionsMenu.userTabIsSelected ? optionsMenu.dragHandIconUrl
                                                          : optionsMenu.dragHandIconDisabledUrl
                }

                Text {
                    id: dragText

                    anchors.top: dragImage.bottom
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: parent.width - optionsMenu.sideMargin
                    horizontalAlignment: Text.AlignHCenter
                    fontSizeMode: Text.HorizontalFit
                    text: qsTr("Add features by drag and drop")
                    font.bold: true
                    font.family: Styling.font__Segoe_UI
                    font.pixelSize: Styling.font__Default_Size
                    color: optionsMenu.userTabIsSelected ? systemPalette.text : systemPalette.mid
                }
            }
        }

        ScrollView {
            id: scrollView

            readonly property real defaultScrollViewHeight: 55

            objectName: "scrollView"
            Layout.fillWidth: true
            Layout.preferredHeight: Math.ceil(flow.height)
            Layout.maximumHeight: defaultScrollViewHeight / optionsMenu.defaultWindowHeight
                                  * optionsMenu.height
            Layout.leftMargin: optionsMenu.sideMargin
            Layout.rightMargin: optionsMenu.sideMargin
            visible: optionsMenu.userTabIsSelected && features.count > 0
            clip: true
            ScrollBar.horizontal.policy: ScrollBar.AlwaysOff
            // In the margin, so that it covers no chip, and seen as long as there is more to see.
            ScrollBar.vertical: ScrollBar {
                parent: optionsMenu
                x: scrollView.x + scrollView.width + (optionsMenu.sideMargin - width) / 2
                y: scrollView.y
                width: 10 * optionsMenu.scaling
                height: scrollView.height
                palette.mid: optionsMenu.faded(systemPalette.text, 0.4)
                palette.dark: optionsMenu.faded(systemPalette.text, 0.65)
                visible: scrollView.visible && size < 1
                policy: ScrollBar.AlwaysOn
            }

            // The chip, which has the focus, goes, and the focus to the next one.
            function remove(chip, fullName) {
                const position = chip.position;
                const reason = chip.button.focusReason;
                optionsMenu.removeFeature(optionsMenu.userTabIndex, fullName);
                if (features.count > 0) {
                    const next = features.itemAt(Math.min(position, features.count - 1));
                    next.button.forceActiveFocus(reason);
                } else {
                    editTabNameListView.currentItem.setActiveFocus();
                }
            }

            Flickable {
                id: flickable

                function reveal(chip) {
                    contentY = Math.max(Math.min(contentY, chip.y), chip.y + chip.height - height);
                }

                contentHeight: flow.height
                boundsBehavior: Flickable.StopAtBounds

                Flow {
                    id: flow

                    property int revealed: -1 // a chip to scroll to once it has its place

                    width: scrollView.width
                    spacing: 2
                    onPositioningComplete: {
                        const chip = features.itemAt(revealed);
                        revealed = -1;
                        if (chip) {
                            flickable.reveal(chip);
                        }
                    }

                    Repeater {
                        id: features

                        model: optionsMenu.featureLists[optionsMenu.userTabIndex] || []

                        Feature {
                            id: chip

                            readonly property int position: index

                            objectName: "feature" + index
                            text: qsTr(modelData.name)
                            scaling: optionsMenu.scaling
                            maximumWidth: flow.width
                            button.onActiveFocusChanged: {
                                if (button.activeFocus) {
                                    flickable.reveal(chip);
                                }
                            }
                            button.onClicked: {
                                if (optionsMenu.userTabIsSelected) {
                                    scrollView.remove(chip, modelData.fullName);
                                }
                            }
                        }
                    }
                }
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.maximumHeight: 32 * optionsMenu.scaling
            Layout.topMargin: 30 * optionsMenu.scaling
            Layout.bottomMargin: optionsMenu.sideMargin
            Layout.leftMargin: optionsMenu.sideMargin
            Layout.rightMargin: optionsMenu.sideMargin

            Item {
                Layout.fillWidth: true
            }

            DialogButton {
                objectName: "addButton"
                Layout.minimumWidth: 64 * optionsMenu.scaling
                Layout.maximumWidth: 64 * optionsMenu.scaling
                text: qsTr("OK")
                color: enabled ? systemPalette.midlight : systemPalette.button
                borderColor: enabled ? systemPalette.mid : systemPalette.midlight

                onClicked: {
                    if (optionsMenu.userTabIsSelected) {
                        optionsMenu.add();
                    } else {
                        optionsMenu.cancel();
                    }
                }
            }

            DialogButton {
                objectName: "cancelButton"
                Layout.minimumWidth: 80 * optionsMenu.scaling
                Layout.maximumWidth: 80 * optionsMenu.scaling
                text: qsTr("Cancel")
                color: systemPalette.base
                borderColor: systemPalette.button

                onClicked: optionsMenu.cancel()
            }
        }
    }
}
