// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The animation of a row that moves. A row that is displaced while it is still appearing ends up fully
// visible.
Transition {
    Spring {
        property: "y"
    }
    Spring {
        property: "opacity"
        to: 1
    }
    Spring {
        property: "scale"
        to: 1
    }
}
