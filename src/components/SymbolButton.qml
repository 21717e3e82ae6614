// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A button that shows a symbol, with a faint background under the pointer.
PressButton {
    id: root

    required property string symbol
    property real symbolSize: 14
    property color color: Theme.secondary
    property color hoverColor: Theme.primary

    help: root.name
    implicitWidth: Math.round(26 * Theme.fonts.scale)
    implicitHeight: root.implicitWidth
    focusRadius: height / 2 + 3

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        antialiasing: true
        color: Theme.fill
        visible: root.hovered && root.enabled
    }

    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: Math.round(root.symbolSize * Theme.fonts.scale)
        color: root.hovered ? root.hoverColor : root.color
    }
}
