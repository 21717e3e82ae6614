// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The application that a note was captured from.
Rectangle {
    id: root

    required property string source
    required property string bundleId
    required property real maximumWidth

    implicitWidth: Math.min(root.maximumWidth, icon.width + 10 + label.implicitWidth + Theme.space)
    implicitHeight: Math.round(20 * Theme.fonts.scale)
    radius: height / 2
    color: Theme.fill
    antialiasing: true
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text

    AppIcon {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: 5
        anchors.verticalCenter: parent.verticalCenter
        bundleId: root.bundleId
        size: Math.round(13 * Theme.fonts.scale)
        tileColor: Theme.neutralTile
    }

    Text {
        id: label

        anchors.left: icon.right
        anchors.leftMargin: 5
        anchors.right: parent.right
        anchors.rightMargin: Theme.space
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        text: qsTr("from %1").arg(root.source)
        textFormat: Text.PlainText
        font: Theme.fonts.caption
        color: Theme.secondary
        Accessible.ignored: true
    }
}
