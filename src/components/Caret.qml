// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The caret of a text item, in the accent colour, over the gap between two letters. Blinks as the desktop
// has it, and stays after a move.
Item {
    id: root

    // Whether the text item has its caret shown, and where.
    required property bool isWanted
    required property rect place
    // In milliseconds; 0 for a caret that does not blink.
    property int flashTime: Application.styleHints.cursorFlashTime
    // As high as the placeholder while that stands beside it.
    property real leastHeight: 0

    width: 2
    visible: root.isWanted
    opacity: blink.isDark ? 0 : 1
    onPlaceChanged: {
        blink.isDark = false;
        if (blink.running)
            blink.restart();
    }

    // On whole points, and round: around an edged one between two pixels the software renderer leaves a
    // hole, through which the desktop is seen.
    Rectangle {
        x: Math.round(root.x) - root.x - 1
        y: Math.round(root.y) - root.y
        width: 2
        height: Math.round(Math.max(root.height, root.leastHeight))
        radius: 1
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
}
