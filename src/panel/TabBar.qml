// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// Selects what the list shows. A thumb slides to the current tab.
Rectangle {
    id: root

    required property PanelModel model
    // Larger text uses whatever room there is.
    readonly property real tabWidth: Math.min(Math.round(128 * Theme.fonts.scale), Math.floor((root.maximumWidth - 6) / 3))
    property real maximumWidth: 3 * 128 + 6
    // If large text makes one word too long, all labels shrink until it fits.
    readonly property real labelScale: Math.min(notes.fittingScale, checklists.fittingScale, prompts.fittingScale)

    implicitWidth: 3 * root.tabWidth + 6
    implicitHeight: thumb.height + 6
    radius: height / 2
    color: Theme.fill
    border.width: 1
    border.color: Theme.edge
    antialiasing: true
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Tabs")

    Rectangle {
        anchors.fill: thumb
        anchors.margins: -1
        anchors.topMargin: 1
        radius: height / 2
        antialiasing: true
        color: Qt.rgba(0, 0, 0, 0.13)
    }

    Rectangle {
        id: thumb

        x: 3 + (Theme.isMirrored ? 2 - root.model.tab : root.model.tab) * root.tabWidth
        y: 3
        width: root.tabWidth
        height: Math.round(26 * Theme.fonts.scale)
        radius: height / 2
        antialiasing: true
        color: Theme.accentFill

        Behavior on x {
            Spring {
            }
        }
    }

    Row {
        x: 3
        y: 3

        TabButton {
            id: notes

            width: root.tabWidth
            labelScale: root.labelScale
            model: root.model
            tab: PanelModel.Tab.Notes
            KeyNavigation.right: checklists
            name: qsTr("Notes")
            count: root.model.notes.noteCount
        }

        TabButton {
            id: checklists

            width: root.tabWidth
            labelScale: root.labelScale
            model: root.model
            tab: PanelModel.Tab.Checklists
            KeyNavigation.right: prompts
            name: qsTr("Checklists")
            count: root.model.notes.checklistCount
        }

        TabButton {
            id: prompts

            width: root.tabWidth
            labelScale: root.labelScale
            model: root.model
            tab: PanelModel.Tab.Prompts
            name: qsTr("Prompts")
            count: root.model.prompts.openCount
        }
    }
}
