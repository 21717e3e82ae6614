// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.App
import Vesk.Components

// What a message window shows. The safe button has the keyboard at first: the window may come up while
// the user types, and a Return must not answer a question that was not read.
Rectangle {
    id: root

    required property string heading
    required property string message
    required property string acceptLabel
    required property string rejectLabel
    required property string details
    // Whether the second button is the one that loses something.
    required property bool isRejectCostly

    signal accepted
    signal rejected

    width: 440
    height: column.height + 2 * 24
    color: Theme.background
    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: root.heading
    Accessible.description: root.message

    Column {
        id: column

        x: 24
        y: 24
        width: root.width - 48
        spacing: 12

        Text {
            width: parent.width
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            text: root.heading
            font: Theme.fonts.headline
            color: Theme.primary
        }

        Text {
            width: parent.width
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            lineHeight: 1.15
            text: root.message
            font: Theme.fonts.body
            color: Theme.secondary
        }

        MessageDetails {
            visible: root.details.length > 0
            width: parent.width
            text: root.details
        }

        Item {
            width: parent.width
            height: buttons.height + 8

            Row {
                id: buttons

                anchors.right: parent.right
                anchors.bottom: parent.bottom
                spacing: Theme.space

                MessageButton {
                    focus: visible && !root.isRejectCostly
                    visible: root.rejectLabel.length > 0
                    text: root.rejectLabel
                    onClicked: root.rejected()
                }

                MessageButton {
                    focus: root.rejectLabel.length === 0 || root.isRejectCostly
                    isMain: true
                    text: root.acceptLabel
                    onClicked: root.accepted()
                }
            }
        }
    }
}
