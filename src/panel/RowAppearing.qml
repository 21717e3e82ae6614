// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The animation of a row that is added to the list.
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
