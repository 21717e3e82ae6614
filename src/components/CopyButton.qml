// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Copies a text. After `confirm` it shows for a moment that the text was copied.
SymbolButton {
    id: root

    readonly property bool isConfirming: moment.running

    function confirm() {
        moment.restart();
    }

    name: qsTr("Copy")
    symbol: root.isConfirming ? "checkmark" : "doc.on.doc"
    color: root.isConfirming ? Theme.accent : Theme.secondary
    hoverColor: root.isConfirming ? Theme.accent : Theme.primary
    Accessible.description: root.isConfirming ? qsTr("Copied") : ""
    onSymbolChanged: appear.restart()

    Timer {
        id: moment

        interval: Theme.motion.feedback
    }

    Spring {
        id: appear

        target: root
        property: "scale"
        from: 0.7
        to: 1
        duration: Theme.motion.press
    }
}
