// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components
import Vesk.Panel

// The button of the panel's menu.
SymbolButton {
    id: root

    required property PanelModel model

    name: qsTr("Menu")
    symbol: "ellipsis"
    symbolSize: 16
    Accessible.role: Accessible.ButtonMenu
    onClicked: menu.openBelow(root)

    Menu {
        id: menu

        name: root.name
        place: KeyLabels.Global

        MenuEntry {
            text: qsTr("Quick Guide…")
            onTriggered: root.model.menu.guideRequested()
        }

        MenuEntry {
            text: CommandKeys.takenTitle
            isVisible: CommandKeys.takenTitle !== ""
            onTriggered: root.model.menu.guideRequested()
        }

        MenuEntry {
            text: qsTr("Check for Updates…")
            isEnabled: root.model.menu.canCheckForUpdates
            onTriggered: root.model.menu.updateCheckRequested()
        }

        MenuEntry {
        }

        MenuEntry {
            text: CommandKeys.newNoteTitle
            onTriggered: root.model.requestField(PanelKeyboard.Field.Composer)
        }

        MenuEntry {
            text: qsTr("Quick Note…")
            onTriggered: root.model.menu.quickNoteRequested()
        }

        MenuEntry {
            text: qsTr("Quick Checklist…")
            onTriggered: root.model.menu.quickChecklistRequested()
        }

        MenuEntry {
            text: qsTr("Clear Done Prompts")
            isEnabled: root.model.prompts.hasDone
            onTriggered: root.model.cards.clearDonePrompts()
        }

        MenuEntry {
        }

        MenuEntry {
            text: qsTr("Accessibility Settings…")
            onTriggered: root.model.menu.accessibilitySettingsRequested()
        }

        MenuEntry {
            text: qsTr("Quit Vesk")
            onTriggered: root.model.menu.quitRequested()
        }
    }
}
