// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A notice: a symbol and a line of text on a capsule.
Surface {
    id: root

    required property string message
    required property string symbol

    // Computed here because a positioner knows its size only when the next frame is drawn.
    implicitWidth: icon.size + Theme.space + label.implicitWidth + 2 * 18
    implicitHeight: Math.ceil(label.implicitHeight) + 2 * 11
    cornerRadius: height / 2
    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Notification
    Accessible.name: root.message

    Symbol {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: Math.round(15 * Theme.fonts.scale)
        color: Theme.accent
    }

    Text {
        id: label

        anchors.left: icon.right
        anchors.leftMargin: Theme.space
        anchors.verticalCenter: parent.verticalCenter
        text: root.message
        textFormat: Text.PlainText
        font: Theme.fonts.strongBody
        color: Theme.primary
        Accessible.ignored: true
    }
}
