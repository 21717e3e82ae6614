// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Explains a control in a bubble below it once the pointer has rested on it for a while. Place it inside the
// control; the bubble itself exists only while it is shown, on top of everything else in the window.
Item {
    id: root

    required property string text
    required property bool isWanted

    anchors.fill: parent

    Timer {
        id: patience

        interval: Theme.motion.helpDelay
        running: root.isWanted && root.text.length > 0
        onTriggered: bubble.setSource("HelpBubble.qml", {
                "target": root,
                "text": root.text
            })
    }

    Loader {
        id: bubble
    }

    Connections {
        function onIsWantedChanged() {
            bubble.source = "";
        }

        target: root
    }
}
