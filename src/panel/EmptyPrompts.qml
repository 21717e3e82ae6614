// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// What the panel shows before there is any prompt: how to get one.
Item {
    id: root

    readonly property string shift: KeyLabels.label("⇧", KeyLabels.Global)

    Accessible.role: Accessible.StaticText
    Accessible.name: heading.text + ". " + first.text + " " + root.shift + " " + root.shift + " " + second.text
    Accessible.ignored: !root.visible

    Column {
        anchors.centerIn: parent
        spacing: Theme.space

        Text {
            id: heading

            anchors.horizontalCenter: parent.horizontalCenter
            bottomPadding: 2
            textFormat: Text.PlainText
            text: qsTr("No prompts yet")
            font: Theme.fonts.headline
            color: Theme.primary
            Accessible.ignored: true
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.tightSpace

            Text {
                id: first

                anchors.verticalCenter: parent.verticalCenter
                rightPadding: 2
                textFormat: Text.PlainText
                text: qsTr("Select text anywhere and tap")
                font: Theme.fonts.body
                color: Theme.secondary
                Accessible.ignored: true
            }

            KeyCap {
                anchors.verticalCenter: parent.verticalCenter
                glyph: "⇧"
                place: KeyLabels.Global
            }

            KeyCap {
                anchors.verticalCenter: parent.verticalCenter
                glyph: "⇧"
                place: KeyLabels.Global
            }
        }

        Text {
            id: second

            anchors.horizontalCenter: parent.horizontalCenter
            textFormat: Text.PlainText
            text: qsTr("or write a follow-up prompt below.")
            font: Theme.fonts.small
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
