// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A round check mark of `size` by `size`, larger where texts are.
Item {
    id: root

    required property bool isDone
    property real size: 16
    // Whether it changes without a motion.
    property bool isStill: false

    implicitWidth: Math.round(root.size * Theme.fonts.scale)
    implicitHeight: root.implicitWidth

    Disc {
        anchors.fill: parent
        borderColor: Theme.tertiary
        borderWidth: 1.4
    }

    Disc {
        anchors.fill: parent
        color: Theme.accent
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

        Symbol {
            anchors.centerIn: parent
            name: "checkmark"
            size: Math.round(0.56 * root.width)
            color: Theme.onAccent
        }
    }
}
