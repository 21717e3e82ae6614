// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// What the panel shows before there is any note: how to make one.
Item {
    id: root

    Column {
        anchors.centerIn: parent
        spacing: Theme.smallSpace

        ProductMark {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 72
            height: 72
            Accessible.ignored: true
        }

        Item {
            width: 1
            height: Theme.space
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            textFormat: Text.PlainText
            text: qsTr("Nothing here yet")
            font: Theme.fonts.headline
            color: Theme.primary
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            textFormat: Text.PlainText
            text: qsTr("Vesk catches whatever you select, from any app.")
            font: Theme.fonts.body
            color: Theme.secondary
        }

        Item {
            width: 1
            height: Theme.margin
        }

        Repeater {
            model: CommandHints {
            }

            Row {
                id: command

                required property list<string> keys
                required property string hint

                spacing: Theme.margin
                Accessible.role: Accessible.StaticText
                Accessible.name: hint

                Item {
                    width: 136
                    height: 24

                    Row {
                        anchors.right: parent.right
                        anchors.verticalCenter: parent.verticalCenter
                        spacing: Theme.tightSpace

                        Repeater {
                            model: command.keys

                            KeyCap {
                                required property string modelData

                                glyph: modelData
                                place: KeyLabels.Global
                            }
                        }
                    }
                }

                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth, root.width - 136 - 3 * Theme.margin)
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    text: command.hint
                    font: Theme.fonts.hint
                    color: Theme.secondary
                    Accessible.ignored: true
                }
            }
        }
    }
}
