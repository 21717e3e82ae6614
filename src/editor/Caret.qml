// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The caret of a text item, in the accent colour. Blinks as the desktop has it, and stays after a move.
Rectangle {
    id: root

    required property TextEdit edit
    // In milliseconds; 0 for a caret that does not blink.
    required property int flashTime

    width: 2
    color: Theme.accent
    visible: root.edit.cursorVisible
    opacity: blink.isDark ? 0 : 1

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
