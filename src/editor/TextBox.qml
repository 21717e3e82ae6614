// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A checkbox in a text: its picture, and what a screen reader knows about it. The text handles clicks.
BoxMark {
    id: root

    required isTicked
    required property rect square
    required property string label
    required property int position

    signal toggled

    // On whole pixels, so that its edge is sharp.
    x: Math.round(root.square.x)
    y: Math.round(root.square.y)
    width: root.square.width
    height: root.square.height
    ringColor: Theme.tertiary
    fillColor: Theme.accentFill
    tickColor: Theme.onAccent
    Accessible.role: Accessible.CheckBox
    Accessible.name: root.label
    Accessible.checkable: true
    Accessible.checked: root.isTicked
    Accessible.onToggleAction: root.toggled()
    Accessible.onPressAction: root.toggled()

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
