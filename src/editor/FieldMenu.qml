// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components
import Vesk.Editor

// A text field's context menu.
Menu {
    id: root

    required property FieldTransfer transfer
    required property bool hasSelection
    required property bool hasText

    name: qsTr("Edit")

    MenuEntry {
        text: qsTr("Cut")
        isEnabled: root.hasSelection
        onTriggered: root.transfer.cut()
    }

    MenuEntry {
        text: qsTr("Copy")
        isEnabled: root.hasSelection
        onTriggered: root.transfer.copy()
    }

    MenuEntry {
        text: qsTr("Paste")
        onTriggered: root.transfer.paste()
    }

    MenuEntry {
        text: qsTr("Delete")
        isEnabled: root.hasSelection
        onTriggered: root.transfer.removeSelection()
    }

    MenuEntry {
    }

    MenuEntry {
        text: qsTr("Select All")
        isEnabled: root.hasText
        onTriggered: root.transfer.selectAll()
    }
}
