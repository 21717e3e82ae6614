// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components

// Asks for the user's consent to read the text selected in other applications.
Item {
    id: root

    required property bool isShown
    // Whether the button is below the message, because beside it the message would have room for only a word
    // or two.
    readonly property bool isStacked: plate.width - dot.anchors.leftMargin - dot.width - button.width - 3 * Theme.wideSpace < 150 * Theme.fonts.scale
    readonly property real contentHeight: root.isStacked ? message.height + Theme.smallSpace + button.height : Math.max(message.height, button.height)

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
        implicitHeight: root.contentHeight + 2 * Theme.wideSpace
        height: implicitHeight
        border.color: "transparent"
        Accessible.role: Accessible.Notification
        Accessible.name: message.text

        Disc {
            id: dot

            anchors.left: parent.left
            anchors.leftMargin: 12
            // Beside the first line, or in the middle of the banner.
            y: message.y + Math.round((message.height / (root.isStacked ? message.lineCount : 1) - height) / 2)
            width: Math.round(8 * Theme.fonts.scale)
            height: width
            color: Theme.attention
        }

        Text {
            id: message

            anchors.left: dot.right
            anchors.leftMargin: Theme.wideSpace
            anchors.right: root.isStacked ? parent.right : button.left
            anchors.rightMargin: Theme.wideSpace
            y: Theme.wideSpace + (root.isStacked ? 0 : Math.round((root.contentHeight - height) / 2))
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
            y: Theme.wideSpace + (root.isStacked ? root.contentHeight - height : Math.round((root.contentHeight - height) / 2))
            implicitWidth: label.implicitWidth + 2 * Theme.wideSpace
            implicitHeight: Math.round(26 * Theme.fonts.scale)
            pressedScale: 0.95
            focusRadius: height / 2 + 3
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
