// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The buttons in the corner of a closed card, shown while the pointer is over the card or one of them has the
// focus.
Rectangle {
    id: root

    required property bool isWanted
    // Whether the Tab key stops at the buttons.
    required property bool canTabIn
    required property bool isPinned
    property bool isMade: false
    readonly property bool isUp: root.isWanted || pin.activeFocus || copy.activeFocus || paste.activeFocus || trash.activeFocus

    signal pinToggled
    signal copied
    signal pasted
    signal removed
    // The area of the buttons was pressed while they were not shown.
    signal missed

    implicitWidth: buttons.width + 4
    implicitHeight: buttons.height + 4
    radius: height / 2
    color: Theme.raised
    border.width: 1
    border.color: Theme.edge
    antialiasing: true
    opacity: root.isMade && root.isUp ? 1 : 0
    enabled: root.isUp || root.canTabIn
    // So that they fade in the first time, too.
    Component.onCompleted: root.isMade = true

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.motion.ease
            easing.type: Easing.OutQuad
        }
    }

    Row {
        id: buttons

        anchors.centerIn: parent
        spacing: 1

        SymbolButton {
            id: pin

            activeFocusOnTab: root.canTabIn || activeFocus
            name: root.isPinned ? qsTr("Unpin") : qsTr("Pin")
            symbol: root.isPinned ? "pin.slash" : "pin"
            onClicked: root.pinToggled()
        }

        CopyButton {
            id: copy

            activeFocusOnTab: root.canTabIn || activeFocus
            onClicked: {
                root.copied();
                copy.confirm();
            }
        }

        SymbolButton {
            id: paste

            activeFocusOnTab: root.canTabIn || activeFocus
            name: KeyLabels.spelt(qsTr("Paste into the App You Came From (⌘↩)"), KeyLabels.Window)
            symbol: "arrow.up.forward.app"
            onClicked: root.pasted()
        }

        SymbolButton {
            id: trash

            activeFocusOnTab: root.canTabIn || activeFocus
            name: KeyLabels.spelt(qsTr("Delete (⌘⌫)"), KeyLabels.Window)
            symbol: "trash"
            onClicked: root.removed()
        }
    }

    // On a touch screen no pointer comes first, so do not press a button that is not visible.
    MouseArea {
        anchors.fill: parent
        visible: !root.isUp
        onClicked: root.missed()
    }
}
