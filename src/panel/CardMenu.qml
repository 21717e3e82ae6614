// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components
import Vesk.Panel

// A card's menu, which offers what its buttons and the keys do.
Menu {
    id: root

    required property PanelModel panel
    required property string cardId
    required property bool isPrompt
    required property bool isDone
    required property bool isPinned
    // Whether the note is already open in its editor.
    required property bool isExpanded

    name: root.isPrompt ? qsTr("Prompt") : qsTr("Note")

    MenuEntry {
        text: qsTr("Open")
        isVisible: !root.isPrompt && !root.isExpanded
        onTriggered: root.panel.cards.activate(root.cardId)
    }

    MenuEntry {
        text: root.isDone ? qsTr("Mark as Not Done") : qsTr("Mark as Done")
        isVisible: root.isPrompt
        onTriggered: root.panel.cards.activate(root.cardId)
    }

    MenuEntry {
        text: root.isPinned ? qsTr("Unpin") : qsTr("Pin")
        isVisible: !root.isPrompt
        onTriggered: root.panel.cards.togglePinned(root.cardId)
    }

    MenuEntry {
    }

    MenuEntry {
        text: qsTr("Copy")
        onTriggered: root.panel.cards.copy(root.cardId)
    }

    MenuEntry {
        text: qsTr("Paste into the App You Came From (⌘↩)")
        onTriggered: root.panel.cards.pasteBack(root.cardId)
    }

    MenuEntry {
    }

    MenuEntry {
        text: qsTr("Delete (⌘⌫)")
        onTriggered: root.panel.cards.remove(root.cardId)
    }
}
