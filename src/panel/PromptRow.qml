// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// A row in the list of prompts: a section's header or a card.
CardRow {
    id: root

    required property int index
    required property bool isHeader
    required property string sectionTitle
    required property int sectionCount
    required property bool isCollapsed
    required property string cardId
    required property string text
    required property bool isDone

    required property PanelModel panel

    Repeater {
        model: root.isHeader ? 1 : 0
        onItemAdded: (index, item) => root.shown = item

        SectionHeader {
            y: root.index > 0 ? Theme.margin : 2
            width: root.width
            title: root.sectionTitle
            count: root.sectionCount
            isCollapsed: root.isCollapsed
            onClicked: root.panel.prompts.toggleSection(root.index)
        }
    }

    Repeater {
        model: root.isHeader ? 0 : 1
        onItemAdded: (index, item) => root.shown = item

        PromptCard {
            id: card

            y: Theme.space
            width: root.width
            focus: true
            cardId: root.cardId
            text: root.text
            isDone: root.isDone
            panel: root.panel

            Connections {
                function onMenuRequested() {
                    card.showMenu();
                }

                target: root
            }
        }
    }
}
