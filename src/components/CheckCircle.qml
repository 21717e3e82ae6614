// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A round check mark of `size` by `size`, scaled with the text size.
Item {
    id: root

    required property bool isDone
    property real size: 16
    // Whether changes are shown without animation.
    property bool isStill: false

    implicitWidth: Math.round(root.size * Theme.fonts.scale)
    implicitHeight: root.implicitWidth

    BoxMark {
        anchors.fill: parent
        ringColor: Theme.tertiary
    }

    BoxMark {
        anchors.fill: parent
        isTicked: true
        fillColor: Theme.accentFill
        tickColor: Theme.onAccent
        scale: root.isDone ? 1 : 0.4
        opacity: root.isDone ? 1 : 0

        Behavior on scale {
            enabled: !root.isStill

            Spring {
            }
        }
        Behavior on opacity {
            enabled: !root.isStill

            Spring {
            }
        }
    }
}
