// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// What scrolls passes under an edge softly, not as if cut.
Rectangle {
    id: root

    // What it passes into.
    property color ground: Theme.background

    anchors.left: parent?.left
    anchors.right: parent?.right
    anchors.leftMargin: 1
    anchors.rightMargin: 1
    gradient: Gradient {
        GradientStop {
            position: 0
            color: root.ground
        }
        GradientStop {
            position: 1
            color: Qt.rgba(root.ground.r, root.ground.g, root.ground.b, 0)
        }
    }
}
