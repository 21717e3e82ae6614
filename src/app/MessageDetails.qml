// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A longer text in a message window that the user can scroll and copy from.
Rectangle {
    id: root

    required property string text

    height: Math.min(220, edit.implicitHeight + 2 * Theme.wideSpace)
    radius: 8
    color: Theme.faintFill
    border.width: 1
    border.color: Theme.edge

    Flickable {
        id: flickable

        anchors.fill: parent
        anchors.margins: Theme.wideSpace
        contentWidth: width
        contentHeight: edit.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        TextEdit {
            id: edit

            width: flickable.width
            readOnly: true
            selectByMouse: true
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            text: root.text
            font: Theme.fonts.body
            color: Theme.primary
            selectionColor: Theme.textSelection
            selectedTextColor: Theme.primary
            Accessible.role: Accessible.StaticText
            Accessible.name: root.text
        }
    }

    StillUnderMouse {
        flickable: flickable
    }
}
