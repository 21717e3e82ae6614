// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Panel

// The list of the current tab, or the reason why it is empty.
FocusScope {
    id: root

    required property PanelModel model
    readonly property bool isOnPrompts: root.model.tab === PanelModel.Tab.Prompts
    readonly property bool hasNoNotes: root.model.notes.noteCount === 0
    readonly property bool isSearching: root.model.query.length > 0

    property bool wantsPrompts: false
    property Item prompts: null

    function takeKeyboard() {
        if (root.isOnPrompts && root.prompts !== null)
            root.prompts.forceActiveFocus();
        else
            notes.forceActiveFocus();
    }

    function showMenu() {
        if (root.isOnPrompts)
            (root.prompts as PromptList)?.showMenu();
        else
            notes.showMenu();
    }

    // The hidden list would take the focus with it.
    onIsOnPromptsChanged: {
        if (isOnPrompts)
            wantsPrompts = true;
        if (activeFocus)
            takeKeyboard();
    }
    Component.onCompleted: wantsPrompts = isOnPrompts

    NoteList {
        id: notes

        anchors.fill: parent
        focus: true
        visible: !root.isOnPrompts
        panel: root.model
    }

    // Created when first needed, and kept. By a repeater, because the Loader of Qt 6.4 does not accept a
    // bound component.
    Repeater {
        model: root.wantsPrompts ? 1 : 0
        onItemAdded: (index, item) => root.prompts = item

        PromptList {
            anchors.fill: parent
            visible: root.isOnPrompts
            panel: root.model
        }
    }

    EmptyState {
        anchors.fill: parent
        visible: root.hasNoNotes && !root.isOnPrompts
    }

    EmptyMessage {
        anchors.fill: parent
        visible: root.model.notes.isEmpty && !root.hasNoNotes && !root.isOnPrompts
        symbol: root.isSearching ? "magnifyingglass" : "checklist"
        title: root.isSearching ? qsTr("No notes match “%1”").arg(root.model.query) : qsTr("No checklists yet")
        hint: root.isSearching ? "" : qsTr("Type [ ] and a space in a note to start one.")
    }

    EmptyPrompts {
        anchors.fill: parent
        visible: root.model.prompts.isEmpty && !root.isSearching && root.isOnPrompts
    }

    EmptyMessage {
        anchors.fill: parent
        visible: root.model.prompts.isEmpty && root.isSearching && root.isOnPrompts
        title: qsTr("No prompts match “%1”").arg(root.model.query)
    }
}
