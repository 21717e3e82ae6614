// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A button without decoration: its content shrinks while it is pressed. A screen reader says `name`; `help`
// appears when the pointer rests on it.
Item {
    id: root

    required property string name
    property string help: ""
    property real pressedScale: 0.88
    property real focusRadius: 6
    readonly property bool hovered: hover.hovered
    readonly property alias pressed: area.pressed

    signal clicked

    // Once per press: a held key must not press repeatedly, perhaps triggering something else by then.
    function pressByKey(event: KeyEvent) {
        if (!event.isAutoRepeat)
            root.clicked();
    }

    activeFocusOnTab: true
    opacity: root.enabled ? 1 : 0.4
    scale: root.pressed ? root.pressedScale : 1
    Accessible.role: Accessible.Button
    Accessible.name: root.name
    Accessible.description: root.help === root.name ? "" : root.help
    Accessible.focusable: true
    Accessible.onPressAction: root.clicked()
    Keys.onSpacePressed: event => root.pressByKey(event)
    Keys.onReturnPressed: event => root.pressByKey(event)
    Keys.onEnterPressed: event => root.pressByKey(event)

    Behavior on scale {
        Spring {
            duration: Theme.motion.press
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

    HoverHelp {
        text: root.help
        isWanted: root.hovered && !root.pressed
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
