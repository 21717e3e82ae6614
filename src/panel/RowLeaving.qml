// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The animation of a row that is removed from the list.
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
