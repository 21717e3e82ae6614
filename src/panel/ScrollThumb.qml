// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Shows where in a long list the view is, while it moves. Goes by rows, whose number is known, not by
// the list's height, which is a guess until all rows have been seen.
Item {
    id: root

    required property ListView list
    property real start: 0
    property real end: 1

    // How many rows stand above a height of the content, the last one in part.
    function rowsAbove(y: real): real {
        const index = list.indexAt(list.width / 2, y);
        const item = index < 0 ? null : list.itemAtIndex(index);
        return item === null ? -1 : index + (y - item.y) / item.height;
    }

    function measure() {
        const above = rowsAbove(list.contentY + 1);
        const until = rowsAbove(list.contentY + list.height - 1);
        start = above < 0 ? 0 : above / list.count;
        end = until < 0 ? 1 : until / list.count;
    }

    width: 5
    visible: list.count > 0 && (end - start) < 0.995

    Connections {
        function onContentYChanged() {
            root.measure();
            if (root.list.moving)
                linger.restart();
        }

        function onContentHeightChanged() {
            root.measure();
        }

        function onHeightChanged() {
            root.measure();
        }

        target: root.list
    }

    Timer {
        id: linger

        interval: 900
    }

    Rectangle {
        readonly property real shown: Math.max(0.001, root.end - root.start)

        width: parent.width
        height: Math.max(32, Math.min(1, shown) * parent.height)
        y: (parent.height - height) * root.start / Math.max(0.001, 1 - shown)
        radius: width / 2
        color: Theme.tertiary
        antialiasing: true
        opacity: linger.running || root.list.moving ? 1 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.easeDuration
                easing.type: Easing.OutQuad
            }
        }
    }
}
