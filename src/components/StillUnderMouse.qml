// SPDX-License-Identifier: MIT
import QtQuick

// Keeps what scrolls from being dragged by the mouse as if it were a touch screen: a press that moves a
// little would be lost as a click. Fingers, the wheel and scroll thumbs still move it. Lies above
// `flickable`, since a handler below is not told of a press that something in there takes.
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
