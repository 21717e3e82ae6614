// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A number that takes the same width whatever its digits are, so that its neighbours do not move.
Text {
    id: root

    required property int count

    width: Math.max(implicitWidth, Theme.fonts.digitsWidth(root.font, root.text.length))
    text: root.count.toLocaleString(Qt.locale(), "f", 0)
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignHCenter
    Accessible.ignored: true
}
