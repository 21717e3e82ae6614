// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A button in a message window.
PressButton {
    id: root

    required property string text
    property bool isMain: false

    name: root.text
    width: label.implicitWidth + 32
    height: Math.round(30 * Theme.fonts.scale)
    pressedScale: 0.97
    focusRadius: 10

    Rectangle {
        anchors.fill: parent
        radius: 8
        antialiasing: true
        color: root.isMain ? Theme.accentFill : root.hovered ? Theme.neutralTile : Theme.fill
    }

    Text {
        id: label

        anchors.centerIn: parent
        textFormat: Text.PlainText
        text: root.text
        font: Theme.fonts.strongBody
        color: root.isMain ? Theme.onAccent : Theme.primary
        Accessible.ignored: true
    }
}
