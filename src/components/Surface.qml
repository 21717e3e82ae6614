// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The ground of a window: rounded, with a hair line inside its edge. Where nothing blends windows the
// window itself is cut to shape, and what lies between the curve and the cut has the line's colour, so
// that no dark pixel shows.
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
