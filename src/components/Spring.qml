// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The spring of every animated change; has no duration if the user wants no motion.
NumberAnimation {
    duration: Theme.motion.spring
    easing.type: Easing.BezierSpline
    easing.bezierCurve: Theme.motion.springCurve
}
