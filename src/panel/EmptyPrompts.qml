// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// What the panel shows before there is any prompt: how to get one.
Item {
    id: root

    readonly property string shift: KeyLabels.label("⇧", KeyLabels.Global)
    readonly property real textWidth: root.width - 2 * Theme.margin

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
            text: qsTr("No prompts yet")
            textFormat: Text.PlainText
            font: Theme.fonts.headline
            color: Theme.primary
            Accessible.ignored: true
        }

        // Breaks before the keys where there is no room for them.
        Grid {
            anchors.horizontalCenter: parent.horizontalCenter
            columns: first.implicitWidth + spacing + caps.width > root.textWidth ? 1 : 2
            spacing: Theme.smallSpace
            horizontalItemAlignment: Grid.AlignHCenter
            verticalItemAlignment: Grid.AlignVCenter

            Text {
                id: first

                width: Math.min(implicitWidth, root.textWidth)
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                text: qsTr("Select text anywhere and tap")
                textFormat: Text.PlainText
                font: Theme.fonts.body
                color: Theme.secondary
                Accessible.ignored: true
            }

            Row {
                id: caps

                spacing: Theme.tightSpace

                KeyCap {
                    glyph: "⇧"
                    place: KeyLabels.Global
                }

                KeyCap {
                    glyph: "⇧"
                    place: KeyLabels.Global
                }
            }
        }

        Text {
            id: second

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, root.textWidth)
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("or write a follow-up prompt below.")
            textFormat: Text.PlainText
            font: Theme.fonts.small
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
