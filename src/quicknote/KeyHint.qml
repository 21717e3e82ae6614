// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components

// What a key or combination does. `keys` are in the notation of Vesk's texts.
Row {
    id: root

    required property list<string> keys
    required property string label

    spacing: 5

    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        LayoutMirroring.enabled: false

        Repeater {
            model: root.keys

            KeyCap {
                required property string modelData

                glyph: modelData
            }
        }
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: root.label
        textFormat: Text.PlainText
        font: Theme.fonts.caption
        color: Theme.secondary
        Accessible.ignored: true
    }
}
