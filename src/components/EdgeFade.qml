// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Fades scrolling content out at an edge instead of cutting it off.
Rectangle {
    id: root

    // The colour that the content fades into.
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
