// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The short ease-out of hover and focus.
ColorAnimation {
    duration: Theme.easeDuration
    easing.type: Easing.OutQuad
}
