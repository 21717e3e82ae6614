// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A line of help for an item, entirely within the item's window: below the item, or above it if there is no
// room.
Rectangle {
    id: root

    required property Item target
    required property string text
    readonly property Item ground: root.target.Window.contentItem
    // The target may be removed from its window before the bubble is.
    readonly property size room: root.ground ? Qt.size(root.ground.width, root.ground.height) : Qt.size(0, 0)
    readonly property point corner: root.target.mapToItem(root.ground, 0, 0)
    readonly property real below: root.corner.y + root.target.height + 6

    parent: root.ground
    z: 900
    width: Math.min(label.implicitWidth + 16, root.room.width - 16)
    height: label.implicitHeight + 9
    x: Math.max(8, Math.min(root.corner.x + (root.target.width - width) / 2, root.room.width - width - 8))
    y: root.below + height + 8 > root.room.height ? root.corner.y - height - 6 : root.below
    radius: 6
    color: Theme.raised
    border.width: 1
    border.color: Theme.strongEdge
    antialiasing: true
    opacity: 0
    Accessible.ignored: true
    Component.onCompleted: opacity = 1

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.motion.ease
        }
    }

    Text {
        id: label

        x: 8
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - 16
        text: root.text
        textFormat: Text.PlainText
        elide: Text.ElideMiddle
        font: Theme.fonts.caption
        color: Theme.primary
    }
}
