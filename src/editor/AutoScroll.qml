// SPDX-License-Identifier: MIT
import QtQuick

// Scrolls while the mouse, with its button held, is above or below the visible part. `scrolled` reports where
// the mouse is, so that dragging or selecting can continue.
Item {
    id: root

    required property Flickable flickable
    // How far the mouse is beyond the edge; negative above.
    readonly property real beyond: {
        const y = press.point.position.y;
        return !press.active ? 0 : y < 0 ? y : Math.max(0, y - root.height);
    }

    signal scrolled(point point)

    PointHandler {
        id: press

        acceptedButtons: Qt.LeftButton
    }

    Timer {
        interval: 30
        repeat: true
        running: root.beyond !== 0
        onTriggered: {
            const last = Math.max(0, root.flickable.contentHeight - root.flickable.height);
            const step = Math.max(-30, Math.min(30, root.beyond / 2));
            root.flickable.contentY = Math.max(0, Math.min(last, root.flickable.contentY + step));
            root.scrolled(press.point.position);
        }
    }
}
