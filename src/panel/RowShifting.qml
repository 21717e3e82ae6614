// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// How a row moves to another place in the list. One that is displaced while it still appears ends up whole.
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
