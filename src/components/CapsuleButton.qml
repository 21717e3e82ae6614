// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A capsule-shaped button with a text. A view's main button is in the accent colour.
PressButton {
    id: root

    required property string text
    property bool isMain: false

    name: root.text
    implicitWidth: Math.ceil(label.implicitWidth) + 2 * 14
    implicitHeight: Math.round(28 * Theme.fonts.scale)
    pressedScale: 0.96
    focusRadius: height / 2 + 3

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        antialiasing: true
        color: root.isMain ? Theme.accentFill : root.hovered ? Theme.neutralTile : Theme.fill
        border.width: root.isMain ? 0 : 1
        border.color: Theme.edge

        Behavior on color {
            Ease {
            }
        }
    }

    Text {
        id: label

        anchors.centerIn: parent
        text: root.text
        textFormat: Text.PlainText
        font: Theme.fonts.strongSmall
        color: root.isMain ? Theme.onAccent : Theme.primary
        Accessible.ignored: true
    }
}
