// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Leads from an open note back to the page or application that it comes from.
PressButton {
    id: root

    required property string label
    required property string bundleId
    required property real maximumWidth

    name: root.label
    pressedScale: 0.97
    focusRadius: height / 2 + 3
    implicitWidth: Math.min(root.maximumWidth, Math.ceil(name.implicitWidth) + icon.width + arrow.width + 25)
    implicitHeight: Math.round(24 * Theme.fonts.scale)
    Accessible.role: Accessible.Link

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        antialiasing: true
        color: Theme.fill
        visible: root.hovered
    }

    AppIcon {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        bundleId: root.bundleId
        size: Math.round(15 * Theme.fonts.scale)
        tileColor: Theme.neutralTile
    }

    Text {
        id: name

        anchors.left: icon.right
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(Math.ceil(implicitWidth), root.width - icon.width - arrow.width - 25)
        elide: Text.ElideMiddle
        text: root.label
        textFormat: Text.PlainText
        font: Theme.fonts.caption
        color: Theme.secondary
        Accessible.ignored: true
    }

    Symbol {
        id: arrow

        anchors.left: name.right
        // Close to the rest of a truncated label.
        anchors.leftMargin: 5 - Math.floor(Math.max(0, name.width - name.contentWidth))
        anchors.verticalCenter: parent.verticalCenter
        name: "arrow.up.right"
        size: Math.round(9 * Theme.fonts.scale)
        color: Theme.accent
    }
}
