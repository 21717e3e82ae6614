// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A button without chrome of its own: whatever is put into it shrinks while it is pressed. `name` is
// what a screen reader says.
Item {
    id: root

    required property string name
    property real pressedScale: 0.88
    property real focusRadius: 6
    readonly property bool hovered: hover.hovered
    readonly property alias pressed: area.pressed

    signal clicked

    activeFocusOnTab: true
    scale: root.pressed ? root.pressedScale : 1
    Accessible.role: Accessible.Button
    Accessible.name: root.name
    Accessible.focusable: true
    Accessible.onPressAction: root.clicked()
    Keys.onSpacePressed: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    Behavior on scale {
        Spring {
            duration: Theme.pressDuration
        }
    }

    HoverHandler {
        id: hover
    }

    MouseArea {
        id: area

        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: root.clicked()
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        visible: root.activeFocus
        radius: root.focusRadius
        color: "transparent"
        border.width: 2
        border.color: Theme.accent
    }
}
