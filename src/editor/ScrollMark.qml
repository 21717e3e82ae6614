// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Shows the scroll position in a long text, in the host's margin beside it.
Rectangle {
    id: root

    required property Flickable flickable
    readonly property real way: parent.height - height

    x: Theme.isMirrored ? -width - 4 : parent.width + 4
    y: Math.round(way * flickable.contentY / Math.max(1, flickable.contentHeight - flickable.height))
    width: 4
    height: Math.round(Math.max(28, flickable.visibleArea.heightRatio * parent.height))
    visible: flickable.contentHeight > flickable.height + 1
    radius: 2
    antialiasing: true
    color: Theme.quaternary
    Accessible.ignored: true
}
