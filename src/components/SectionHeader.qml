// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The line above a section of a list. A click asks to collapse or expand the section.
PressButton {
    id: root

    required property string title
    required property int count
    required property bool isCollapsed

    name: qsTr("%1, %2, %3").arg(title).arg(qsTr("%Ln items", "", count)).arg(isCollapsed ? qsTr("collapsed") : qsTr("expanded"))
    help: root.isCollapsed ? qsTr("Show") : qsTr("Hide")
    pressedScale: 1
    implicitHeight: Math.round(20 * Theme.fonts.scale)

    Symbol {
        id: chevron

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.down"
        size: Math.round(9 * Theme.fonts.scale)
        color: Theme.secondary
        rotation: root.isCollapsed ? (Theme.isMirrored ? 90 : -90) : 0

        Behavior on rotation {
            Spring {
            }
        }
    }

    Text {
        id: heading

        anchors.left: chevron.right
        anchors.leftMargin: Theme.smallSpace
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        textFormat: Text.PlainText
        font: Theme.fonts.section
        color: root.hovered ? Theme.primary : Theme.secondary
        Accessible.ignored: true

        Behavior on color {
            Ease {
            }
        }
    }

    CountText {
        id: number

        anchors.left: heading.right
        anchors.leftMargin: Theme.smallSpace
        anchors.baseline: heading.baseline
        count: root.count
        font: Theme.fonts.count
        color: Theme.tertiary
    }

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        // On whole points, so that the line ends exactly where the cards below do.
        x: Theme.isMirrored ? 0 : Math.round(number.x + number.width) + Theme.tightSpace
        width: Theme.isMirrored ? Math.round(number.x) - Theme.tightSpace : parent.width - x
        height: 1
        color: Theme.strongEdge
    }
}
