// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A rounded field on a window's ground: a faint fill with a hair line inside its edge.
Rectangle {
    radius: Theme.plateRadius
    color: Theme.fill
    border.width: 1
    border.color: Theme.edge
    antialiasing: true
}
