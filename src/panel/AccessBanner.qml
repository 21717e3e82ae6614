// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components

// Asks for the user's consent that Vesk reads the text selected in other applications.
Item {
    id: root

    required property bool isShown

    signal settingsRequested

    height: root.isShown ? plate.implicitHeight + Theme.space : 0
    implicitHeight: height
    opacity: root.isShown ? 1 : 0
    visible: opacity > 0

    Behavior on height {
        Spring {
        }
    }
    Behavior on opacity {
        Spring {
        }
    }

    Plate {
        id: plate

        anchors.left: parent.left
        anchors.right: parent.right
        implicitHeight: Math.max(message.implicitHeight, button.implicitHeight) + 2 * Theme.wideSpace
        height: implicitHeight
        border.color: "transparent"
        Accessible.role: Accessible.Notification
        Accessible.name: message.text

        Disc {
            id: dot

            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            width: 8
            height: 8
            color: Theme.attention
        }

        Text {
            id: message

            anchors.left: dot.right
            anchors.leftMargin: Theme.wideSpace
            anchors.right: button.left
            anchors.rightMargin: Theme.wideSpace
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            text: qsTr("Vesk needs Accessibility access to read selected text")
            font: Theme.fonts.small
            color: Theme.primary
        }

        PressButton {
            id: button

            anchors.right: parent.right
            anchors.rightMargin: Theme.wideSpace
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: label.implicitWidth + 2 * Theme.wideSpace
            implicitHeight: 26
            pressedScale: 0.95
            focusRadius: 16
            name: label.text
            onClicked: root.settingsRequested()

            Rectangle {
                anchors.fill: parent
                radius: height / 2
                antialiasing: true
                color: button.hovered ? Theme.neutralTile : Theme.fill
            }

            Text {
                id: label

                anchors.centerIn: parent
                textFormat: Text.PlainText
                text: qsTr("Open Settings")
                font: Theme.fonts.strongSmall
                color: Theme.primary
                Accessible.ignored: true
            }
        }
    }
}
