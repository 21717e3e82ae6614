// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The progress of a checklist, as a ring and in words.
Row {
    id: root

    required property int done
    required property int total
    // Whether the ring changes without animation.
    property bool isStill: false

    spacing: Math.round(5 * Theme.fonts.scale)
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text

    Item {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(10 * Theme.fonts.scale)
        height: width

        Disc {
            anchors.fill: parent
            borderWidth: 1.8 * Theme.fonts.scale
            borderColor: Theme.track
        }

        Disc {
            anchors.fill: parent
            borderWidth: 1.8 * Theme.fonts.scale
            borderColor: Theme.accent
            fraction: root.total > 0 ? root.done / root.total : 0

            Behavior on fraction {
                enabled: !root.isStill

                Spring {
                }
            }
        }
    }

    Text {
        id: label

        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("%L1 of %L2").arg(root.done).arg(root.total)
        textFormat: Text.PlainText
        font: Theme.fonts.caption
        color: Theme.secondary
        Accessible.ignored: true
    }
}
