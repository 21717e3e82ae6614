// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The background of a window: rounded, with a hairline inside its edge. Without a compositor the window
// itself is cut to shape, and the area between the curve and the cut has the line's colour so that no dark
// pixels show.
Rectangle {
    id: root

    property real cornerRadius: 34

    color: Theme.isComposited ? "transparent" : Theme.opaqueEdge

    Rectangle {
        anchors.fill: parent
        radius: root.cornerRadius
        color: Theme.background
        border.width: 1
        border.color: Theme.opaqueEdge
        antialiasing: true
    }
}
