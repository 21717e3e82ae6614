// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// Shown as long as there are no notes: explains how to create one.
Item {
    id: root

    // The width of the longest key combination.
    property real keysWidth: 136
    readonly property real fullWidth: root.width - 2 * Theme.margin
    readonly property real hintWidth: root.width - root.keysWidth - 3 * Theme.margin
    // Whether a hint is below its keys, because words would be broken beside them.
    readonly property bool isStacked: root.hintWidth < 110 * Theme.fonts.scale

    // Scrolls if large text leaves too little room.
    Flickable {
        id: scroller

        anchors.fill: parent
        contentHeight: column.height + 2 * Theme.space
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column

            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.max(Theme.space, Math.round((scroller.height - height) / 2))
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
                width: Math.min(implicitWidth, root.fullWidth)
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

                Grid {
                    id: command

                    required property list<string> keys
                    required property string hint
                    required property bool isTaken
                    required property string spoken

                    anchors.left: parent.left
                    columns: root.isStacked ? 1 : 2
                    columnSpacing: Theme.margin
                    rowSpacing: Theme.tightSpace
                    bottomPadding: root.isStacked ? Theme.margin : 0
                    verticalItemAlignment: Grid.AlignVCenter
                    Accessible.role: Accessible.StaticText
                    Accessible.name: spoken

                    Item {
                        width: root.isStacked ? root.fullWidth : root.keysWidth
                        height: Math.max(24, keyRow.height)

                        Row {
                            id: keyRow

                            anchors.right: parent.right
                            anchors.rightMargin: root.isStacked ? Math.round((parent.width - width) / 2) : 0
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

                    // Do not use the text's own width, which changes when it is wrapped.
                    TextMetrics {
                        id: measure

                        font: Theme.fonts.hint
                        text: command.hint
                    }

                    Text {
                        width: root.isStacked ? root.fullWidth : Math.min(Math.ceil(measure.advanceWidth) + 2, root.hintWidth)
                        horizontalAlignment: root.isStacked ? Text.AlignHCenter : Text.AlignLeft
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

    StillUnderMouse {
        flickable: scroller
    }

    EdgeFade {
        anchors.top: parent.top
        height: 8
        visible: !scroller.atYBeginning
    }

    EdgeFade {
        anchors.bottom: parent.bottom
        height: 12
        rotation: 180
        visible: !scroller.atYEnd
    }
}
