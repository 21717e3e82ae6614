// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// The last line of a card: when the note was changed, where it comes from, and the progress of its checklist.
Item {
    id: root

    required property string time
    required property string source
    required property string sourceBundle
    required property int done
    required property int total
    required property bool isStill
    property Item chip: null

    implicitHeight: Math.round(22 * Theme.fonts.scale)

    Row {
        anchors.left: parent.left
        anchors.right: root.chip?.left ?? parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: 1
        spacing: Theme.space

        Text {
            id: age

            anchors.verticalCenter: parent.verticalCenter
            text: root.time
            textFormat: Text.PlainText
            font: Theme.fonts.caption
            color: Theme.secondary
        }

        SourceCapsule {
            anchors.verticalCenter: parent.verticalCenter
            maximumWidth: parent.width - age.width - Theme.margin
            visible: root.source.length > 0
            source: root.source
            bundleId: root.sourceBundle
        }
    }

    Repeater {
        model: root.total > 0 ? 1 : 0
        onItemAdded: (index, item) => root.chip = item
        onItemRemoved: root.chip = null

        ProgressChip {
            anchors.right: root.right
            anchors.verticalCenter: root.verticalCenter
            anchors.verticalCenterOffset: 1
            done: root.done
            total: root.total
            isStill: root.isStill
        }
    }
}
