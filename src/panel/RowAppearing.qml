// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// How a row comes into the list.
Transition {
    Spring {
        property: "opacity"
        from: 0
        to: 1
    }
    Spring {
        property: "scale"
        from: 0.97
        to: 1
    }
}
