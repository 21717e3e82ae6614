// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// How a row leaves the list.
Transition {
    Spring {
        property: "opacity"
        to: 0
        duration: Theme.motion.press
    }
    Spring {
        property: "scale"
        to: 0.97
        duration: Theme.motion.press
    }
}
