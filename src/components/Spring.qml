// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The spring of every animated change; none where the user wants no motion.
NumberAnimation {
    duration: Theme.springDuration
    easing.type: Easing.BezierSpline
    easing.bezierCurve: Theme.springCurve
}
