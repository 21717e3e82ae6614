// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// The content of the panel's window.
FocusScope {
    id: root

    required property PanelModel model
    required property real cornerRadius

    function giveKeyboard(field: int) {
        if (field === PanelModel.Field.Search)
            search.takeKeyboard();
        else if (field === PanelModel.Field.Composer)
            composer.takeKeyboard();
        else
            list.forceActiveFocus();
    }

    focus: true

    Binding {
        target: root.model
        property: "activeField"
        value: search.hasKeyboard ? PanelModel.Field.Search : composer.hasKeyboard ? PanelModel.Field.Composer : PanelModel.Field.None
    }

    Binding {
        target: root.model
        property: "keyOwner"
        value: search.isComposing || composer.isComposing ? PanelModel.KeyOwner.Other : PanelModel.KeyOwner.None
    }

    Connections {
        function onFieldRequestChanged() {
            root.giveKeyboard(root.model.requestedField);
        }

        function onFocusedChanged() {
            list.showFocused();
        }

        target: root.model
    }

    Surface {
        anchors.fill: parent
        cornerRadius: root.cornerRadius
    }

    SearchField {
        id: search

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.margin
        model: root.model
    }

    NoteList {
        id: list

        anchors.top: search.bottom
        anchors.topMargin: Theme.wideSpace
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: banner.top
        anchors.bottomMargin: Theme.smallSpace
        focus: true
        model: root.model
    }

    EmptySearch {
        anchors.fill: list
        visible: root.model.notes.isEmpty && root.model.notes.noteCount > 0
        query: root.model.query
    }

    EmptyState {
        anchors.fill: list
        visible: root.model.notes.noteCount === 0
    }

    AccessBanner {
        id: banner

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        anchors.bottom: composer.top
        isShown: !root.model.isTrusted
        onSettingsRequested: root.model.askForTrust()
    }

    Composer {
        id: composer

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Theme.margin
        model: root.model
    }
}
