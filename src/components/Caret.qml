// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The caret of a text item, in the accent colour, centred on the gap between two letters. Blinks at the
// desktop's rate, and stays visible after a move.
Item {
    id: root

    // Whether the text item shows its caret, and where.
    required property bool isWanted
    required property rect place
    // In milliseconds; 0 if the caret does not blink.
    property int flashTime: Application.styleHints.cursorFlashTime
    // At least as high as the placeholder while that is shown beside the caret.
    property real leastHeight: 0

    width: 2
    visible: root.isWanted
    opacity: blink.isDark ? 0 : 1
    onPlaceChanged: {
        blink.isDark = false;
        if (blink.running)
            blink.restart();
    }

    // On whole points, and round: the software renderer leaves a transparent gap around a rectangle that lies
    // between two pixels.
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
