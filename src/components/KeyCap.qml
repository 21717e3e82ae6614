// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A key as it is printed on the keyboard. `glyph` is the key in the notation of Vesk's texts.
Rectangle {
    id: root

    required property string glyph
    property int place: KeyLabels.Window
    // Whether pressing the key currently does nothing.
    property bool isIdle: false

    implicitWidth: Math.max(implicitHeight, Math.ceil(label.implicitWidth) + 2 * Math.round((label.text.length > 1 ? 4 : 2) * Theme.fonts.scale))
    implicitHeight: Math.round(20 * Theme.fonts.scale)
    radius: Math.round(5 * Theme.fonts.scale)
    color: Theme.capFill
    border.width: 1
    border.color: Theme.capEdge
    antialiasing: true
    Accessible.ignored: true

    Text {
        id: label

        anchors.centerIn: parent
        text: KeyLabels.label(root.glyph, root.place)
        textFormat: Text.PlainText
        font: Theme.fonts.key
        color: root.isIdle ? Theme.tertiary : Theme.primary
    }
}
