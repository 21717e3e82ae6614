// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// What the panel shows before there is any note: how to make one.
Item {
    id: root

    // As the longest combination of keys needs.
    property real keysWidth: 136

    // Scrolls where large texts leave no room.
    Flickable {
        id: scroller

        anchors.fill: parent
        contentHeight: column.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column

            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.max(0, (scroller.height - height) / 2)
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
                text: qsTr("Nothing here yet")
                textFormat: Text.PlainText
                font: Theme.fonts.headline
                color: Theme.primary
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, root.width - 2 * Theme.margin)
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                text: qsTr("Vesk catches whatever you select, from any app.")
                textFormat: Text.PlainText
                font: Theme.fonts.body
                color: Theme.secondary
            }

            Item {
                width: 1
                height: Theme.margin
            }

            Repeater {
                model: CommandHints {
                    commandKeys: CommandKeys
                }

                Row {
                    id: command

                    required property list<string> keys
                    required property string hint
                    required property bool isTaken

                    anchors.left: parent.left
                    spacing: Theme.margin
                    Accessible.role: Accessible.StaticText
                    Accessible.name: hint

                    Item {
                        width: root.keysWidth
                        height: Math.max(24, keyRow.height)

                        Row {
                            id: keyRow

                            anchors.right: parent.right
                            anchors.verticalCenter: parent.verticalCenter
                            spacing: Theme.tightSpace
                            onImplicitWidthChanged: root.keysWidth = Math.max(root.keysWidth, implicitWidth)
                            layoutDirection: Theme.isMirrored ? Qt.RightToLeft : Qt.LeftToRight

                            Repeater {
                                model: command.keys

                                KeyCap {
                                    required property string modelData

                                    glyph: modelData
                                    place: KeyLabels.Global
                                    isIdle: command.isTaken
                                }
                            }
                        }
                    }

                    Text {
                        anchors.verticalCenter: parent.verticalCenter
                        width: Math.min(implicitWidth, root.width - root.keysWidth - 3 * Theme.margin)
                        wrapMode: Text.Wrap
                        text: command.hint
                        textFormat: Text.PlainText
                        font: Theme.fonts.hint
                        color: Theme.secondary
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
