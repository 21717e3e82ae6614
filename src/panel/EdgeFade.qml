// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Cards pass under an edge of a list softly, not as if cut.
Rectangle {
    anchors.left: parent?.left
    anchors.right: parent?.right
    anchors.leftMargin: 1
    anchors.rightMargin: 1
    gradient: Gradient {
        GradientStop {
            position: 0
            color: Theme.background
        }
        GradientStop {
            position: 1
            color: Theme.clearBackground
        }
    }
}
