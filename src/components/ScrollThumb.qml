// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Shows the position in a long list while it scrolls or the pointer is near, and scrolls it when dragged.
// Calculates with rows, whose number is known, rather than with the list's height, which is an estimate until
// all rows have been seen.
Item {
    id: root

    required property ListView list
    property real start: 0
    property real end: 1
    readonly property real shown: Math.max(0.001, Math.min(1, root.end - root.start))
    readonly property bool isDragged: grip.drag.active

    // How many rows lie above a content position; the last may be partial.
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

    // Scrolls so that this fraction of the scrollable rows is above the view.
    function moveTo(part: real) {
        if (part >= 1)
            return list.positionViewAtEnd();
        const rows = Math.max(0, part) * (1 - shown) * list.count;
        list.positionViewAtIndex(Math.floor(rows), ListView.Beginning);
        const item = list.itemAtIndex(Math.floor(rows));
        if (item !== null && rows % 1 > 0)
            list.contentY = Math.min(item.y + (rows % 1) * item.height, list.originY + list.contentHeight + list.bottomMargin - list.height);
    }

    width: 13
    visible: list.count > 0 && (end - start) < 0.995
    Accessible.ignored: true

    Connections {
        function onContentYChanged() {
            root.measure();
            if (root.list.moving || root.isDragged)
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
        id: thumb

        readonly property real way: root.height - height

        anchors.right: parent.right
        anchors.rightMargin: 4
        width: grip.containsMouse || root.isDragged ? 7 : 5
        height: Math.max(32, root.shown * root.height)
        y: root.isDragged ? handle.y : way * Math.min(1, root.start / Math.max(0.001, 1 - root.shown))
        radius: width / 2
        color: root.isDragged ? Theme.secondary : Theme.tertiary
        antialiasing: true
        opacity: linger.running || root.list.moving || grip.containsMouse || root.isDragged ? 1 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.motion.ease
                easing.type: Easing.OutQuad
            }
        }
    }

    // The user drags this invisible item; the thumb itself follows the list.
    Item {
        id: handle

        onYChanged: {
            if (root.isDragged)
                root.moveTo(y / Math.max(1, thumb.way));
        }
    }

    MouseArea {
        id: grip

        anchors.right: parent.right
        y: thumb.y
        width: parent.width
        height: thumb.height
        hoverEnabled: true
        preventStealing: true
        drag.target: handle
        drag.axis: Drag.YAxis
        drag.threshold: 2
        drag.minimumY: 0
        drag.maximumY: thumb.way
        drag.smoothed: false
        onPressed: handle.y = thumb.y
    }
}
