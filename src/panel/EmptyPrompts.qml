// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components

// Shown as long as there are no prompts: explains how to create one.
Item {
    id: root

    readonly property bool hasKeys: CommandKeys.promptKeys.length > 0
    readonly property real textWidth: root.width - 2 * Theme.margin

    Accessible.role: Accessible.StaticText
    Accessible.name: heading.text + ". " + (root.hasKeys ? first.text + " " + CommandKeys.promptSpoken + " " : "") + second.text
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

        // Wraps before the keys if they do not fit.
        Grid {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.hasKeys
            columns: first.implicitWidth + spacing + caps.width > root.textWidth ? 1 : 2
            spacing: Theme.smallSpace
            horizontalItemAlignment: Grid.AlignHCenter
            verticalItemAlignment: Grid.AlignVCenter

            Text {
                id: first

                width: Math.min(implicitWidth, root.textWidth)
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                text: CommandKeys.isPromptTapped ? qsTr("Select text anywhere and tap") : qsTr("Select text anywhere and press")
                textFormat: Text.PlainText
                font: Theme.fonts.body
                color: Theme.secondary
                Accessible.ignored: true
            }

            Row {
                id: caps

                spacing: Theme.tightSpace

                Repeater {
                    model: CommandKeys.promptKeys

                    KeyCap {
                        required property string modelData

                        glyph: modelData
                        place: KeyLabels.Global
                        isIdle: CommandKeys.isPromptTaken
                    }
                }
            }
        }

        Text {
            id: second

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, root.textWidth)
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: root.hasKeys ? qsTr("or write a follow-up prompt below.") : qsTr("Write a follow-up prompt below.")
            textFormat: Text.PlainText
            font: Theme.fonts.small
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
