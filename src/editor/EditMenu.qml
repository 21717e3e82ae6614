// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components
import Vesk.Editor

// A text's context menu.
Menu {
    id: root

    required property NoteTextView view
    property bool hasSelection: false

    name: qsTr("Edit")

    MenuEntry {
        text: qsTr("Undo")
        isEnabled: root.view.canUndo
        onTriggered: root.view.undo()
    }

    MenuEntry {
        text: qsTr("Redo")
        isEnabled: root.view.canRedo
        onTriggered: root.view.redo()
    }

    MenuEntry {
    }

    MenuEntry {
        text: qsTr("Cut")
        isEnabled: root.hasSelection
        onTriggered: root.view.cut()
    }

    MenuEntry {
        text: qsTr("Copy")
        isEnabled: root.hasSelection
        onTriggered: root.view.copy()
    }

    MenuEntry {
        text: qsTr("Paste")
        onTriggered: root.view.paste()
    }

    MenuEntry {
        text: qsTr("Delete")
        isEnabled: root.hasSelection
        onTriggered: root.view.removeSelection()
    }

    MenuEntry {
    }

    MenuEntry {
        text: qsTr("Select All")
        onTriggered: root.view.selectAll()
    }
}
