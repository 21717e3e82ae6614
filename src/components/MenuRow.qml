// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// One entry of a menu.
Rectangle {
    id: root

    required property MenuEntry entry
    required property int place
    required property bool isCurrent

    signal pointedAt
    signal pointedAway
    signal clicked

    visible: root.entry.isVisible
    implicitWidth: root.entry.isDivider ? 0 : label.implicitWidth + 2 * 10
    implicitHeight: root.entry.isDivider ? 9 : Math.round(24 * Theme.fonts.scale + label.implicitHeight * (1 - 1 / label.lineCount))
    radius: 6
    color: root.isCurrent ? Theme.accentFill : "transparent"
    antialiasing: true
    Accessible.role: root.entry.isDivider ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: label.text
    Accessible.focusable: root.entry.isEnabled && !root.entry.isDivider
    Accessible.onPressAction: root.clicked()
    // Move the focus along so that a screen reader announces the entry.
    onIsCurrentChanged: {
        if (isCurrent)
            forceActiveFocus();
    }

    Text {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, root.width - 2 * 10)
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
        text: KeyLabels.spelt(root.entry.text, root.place)
        textFormat: Text.PlainText
        font: Theme.fonts.body
        color: root.isCurrent ? Theme.onAccent : root.entry.isEnabled ? Theme.primary : Theme.tertiary
        Accessible.ignored: true
    }

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        x: 10
        width: parent.width - 2 * x
        height: 1
        visible: root.entry.isDivider
        color: Theme.strongEdge
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onEntered: root.pointedAt()
        onPositionChanged: root.pointedAt()
        onExited: root.pointedAway()
        onClicked: root.clicked()
    }
}
