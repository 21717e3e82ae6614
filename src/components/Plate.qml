// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// A rounded area on a window's background: a faint fill with a hairline inside its edge.
Rectangle {
    radius: Theme.plateRadius
    color: Theme.fill
    border.width: 1
    border.color: Theme.edge
    antialiasing: true
}
