// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components

// Reports that something could not be saved, as long as that is the case.
Item {
    id: root

    // One sentence; empty if there is no problem.
    required property string problem

    height: root.problem.length > 0 ? plate.height + Theme.space : 0
    implicitHeight: height
    opacity: root.problem.length > 0 ? 1 : 0
    visible: opacity > 0

    Behavior on height {
        Spring {
        }
    }
    Behavior on opacity {
        Spring {
        }
    }

    Plate {
        id: plate

        anchors.left: parent.left
        anchors.right: parent.right
        implicitHeight: message.height + 2 * Theme.wideSpace
        height: implicitHeight
        border.color: "transparent"
        Accessible.role: Accessible.AlertMessage
        Accessible.name: message.text

        Disc {
            id: dot

            anchors.left: parent.left
            anchors.leftMargin: 12
            y: message.y + Math.round((message.height / message.lineCount - height) / 2)
            width: Math.round(8 * Theme.fonts.scale)
            height: width
            color: Theme.attention
        }

        Text {
            id: message

            // Keeps the last problem readable while the banner disappears.
            property string shown

            anchors.left: dot.right
            anchors.leftMargin: Theme.wideSpace
            anchors.right: parent.right
            anchors.rightMargin: Theme.wideSpace
            y: Theme.wideSpace
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            text: shown
            font: Theme.fonts.small
            color: Theme.primary

            Binding on shown {
                value: root.problem
                when: root.problem.length > 0
                restoreMode: Binding.RestoreNone
            }
        }
    }
}
