// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The caret of a text item, in the accent colour. Blinks as the desktop has it, and stays after a move.
Item {
    id: root

    required property TextEdit edit
    // In milliseconds; 0 for a caret that does not blink.
    required property int flashTime
    // As high as the placeholder while that stands beside it.
    required property real leastHeight

    width: 2
    visible: root.edit.cursorVisible
    opacity: blink.isDark ? 0 : 1

    Rectangle {
        width: parent.width
        height: Math.max(parent.height, root.leastHeight)
        color: Theme.accent
    }

    Timer {
        id: blink

        property bool isDark: false

        interval: root.flashTime / 2
        running: root.visible && interval > 0
        repeat: true
        onTriggered: isDark = !isDark
        onRunningChanged: isDark = false
    }

    Connections {
        function onCursorRectangleChanged() {
            blink.isDark = false;
            if (blink.running)
                blink.restart();
        }

        target: root.edit
    }
}
