// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components

// One topic of the guide: a symbol, a title with its keys, the explanation and, if the topic needs it,
// whether Vesk may read other applications.
Item {
    id: root

    required property string symbol
    required property string title
    required property list<string> keys
    required property int place
    required property string text
    required property string spoken
    required property bool showsAccess
    // Why the keys do not work; empty if they do.
    required property string notice
    required property bool isTaken
    property bool isTrusted: false

    signal settingsRequested
    // A control in the row has received the focus.
    signal keyboardCame

    implicitHeight: Math.max(tile.height, column.implicitHeight)
    Accessible.role: Accessible.ListItem
    Accessible.name: root.spoken
    Accessible.description: root.text

    Rectangle {
        id: tile

        anchors.left: parent.left
        width: Math.round(32 * Theme.fonts.scale)
        height: width
        radius: width / 4
        antialiasing: true
        color: Theme.accentTile

        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: Math.round(16 * Theme.fonts.scale)
            color: Theme.accent
        }
    }

    Column {
        id: column

        anchors.left: tile.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        spacing: Theme.tightSpace

        // Wraps before the keys if large text leaves them no room.
        Flow {
            width: parent.width
            spacing: Theme.space

            Text {
                width: Math.min(implicitWidth, parent.width)
                wrapMode: Text.Wrap
                height: caps.visible ? Math.max(implicitHeight, caps.height) : implicitHeight
                verticalAlignment: Text.AlignVCenter
                textFormat: Text.PlainText
                text: root.title
                font: Theme.fonts.strongBody
                color: Theme.primary
                Accessible.ignored: true
            }

            Row {
                id: caps

                visible: root.keys.length > 0
                spacing: 3
                // Keys are listed in the order in which they are pressed, in every language.
                LayoutMirroring.enabled: false

                Repeater {
                    model: root.keys

                    KeyCap {
                        required property string modelData

                        glyph: modelData
                        place: root.place
                        isIdle: root.isTaken
                    }
                }
            }
        }

        Text {
            width: parent.width
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            text: root.text
            font: Theme.fonts.small
            color: Theme.secondary
            Accessible.ignored: true
        }

        Row {
            width: parent.width
            visible: root.notice !== ""
            spacing: Theme.smallSpace

            Symbol {
                id: sign

                visible: root.isTaken
                y: Math.round(2 * Theme.fonts.scale)
                name: "exclamationmark.triangle.fill"
                size: Math.round(12 * Theme.fonts.scale)
                color: Theme.attentionText
            }

            Text {
                width: parent.width - (sign.visible ? sign.width + parent.spacing : 0)
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                text: root.notice
                font: Theme.fonts.small
                color: root.isTaken ? Theme.attentionText : Theme.tertiary
                Accessible.ignored: true
            }
        }

        Repeater {
            model: root.showsAccess ? 1 : 0

            AccessStatus {
                width: column.width
                isTrusted: root.isTrusted
                onSettingsRequested: root.settingsRequested()
                onKeyboardCame: root.keyboardCame()
            }
        }
    }
}
