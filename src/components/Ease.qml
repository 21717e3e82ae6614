// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The short ease-out animation for hover and focus.
ColorAnimation {
    duration: Theme.motion.ease
    easing.type: Easing.OutQuad
}
