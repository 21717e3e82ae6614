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
    readonly property Item keyboard: Window.activeFocusItem

    function giveKeyboard(field: int) {
        // Whatever covers the panel has the focus.
        if (!root.enabled)
            return;
        if (field === PanelKeyboard.Field.Search)
            search.takeKeyboard();
        else if (field === PanelKeyboard.Field.Composer)
            composer.takeKeyboard();
        else
            content.takeKeyboard();
    }

    focus: true

    Binding {
        target: root.model.keyboard
        property: "activeField"
        value: search.hasKeyboard ? PanelKeyboard.Field.Search : composer.hasKeyboard ? PanelKeyboard.Field.Composer : PanelKeyboard.Field.None
    }

    Binding {
        target: root.model.keyboard
        property: "isComposing"
        value: search.isComposing || composer.isComposing
    }

    Binding {
        target: root.model.keyboard
        property: "isOnControl"
        value: root.keyboard instanceof PressButton
    }

    Connections {
        function onFieldRequestChanged() {
            root.giveKeyboard(root.model.keyboard.requestedField);
        }

        function onMenuRequested() {
            if (search.hasKeyboard)
                search.showMenu();
            else if (composer.hasKeyboard)
                composer.showMenu();
            else
                content.showMenu();
        }

        target: root.model.keyboard
    }

    Surface {
        anchors.fill: parent
        cornerRadius: root.cornerRadius
    }

    SearchField {
        id: search

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: menu.left
        anchors.margins: Theme.margin
        anchors.rightMargin: Theme.space
        model: root.model
    }

    PanelMenuButton {
        id: menu

        anchors.verticalCenter: search.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        width: 34
        height: 34
        model: root.model
    }

    TabBar {
        id: tabs

        anchors.top: search.bottom
        anchors.topMargin: Theme.wideSpace
        anchors.horizontalCenter: parent.horizontalCenter
        maximumWidth: parent.width - 2 * Theme.margin
        model: root.model
    }

    PanelContent {
        id: content

        anchors.top: tabs.bottom
        anchors.topMargin: Theme.space
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: problemBanner.top
        anchors.bottomMargin: Theme.smallSpace
        focus: true
        model: root.model
    }

    ProblemBanner {
        id: problemBanner

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        anchors.bottom: banner.top
        problem: root.model.problem
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
