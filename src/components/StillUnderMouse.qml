// SPDX-License-Identifier: MIT
import QtQuick

// Keeps the mouse from dragging scrollable content as on a touch screen, where a press that moves slightly
// would not count as a click. Fingers, the wheel and scroll thumbs still scroll it. Place this above
// `flickable`: a handler below it does not see presses that are accepted inside.
Item {
    id: root

    required property Flickable flickable

    anchors.fill: root.flickable
    z: 1

    PointHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        acceptedButtons: Qt.AllButtons
        target: null
        onActiveChanged: root.flickable.interactive = !active
    }
}
