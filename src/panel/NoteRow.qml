// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// A row in the list of notes: a section's header or a card. Created by repeaters of one, because the Loader
// of Qt 6.4 does not accept a bound component inside a delegate.
NoteRoles {
    id: root

    Repeater {
        model: root.isHeader ? 1 : 0
        onItemAdded: (index, item) => root.shown = item

        SectionHeader {
            y: root.index > 0 ? Theme.margin : 2
            width: root.width
            title: root.sectionTitle
            count: root.sectionCount
            isCollapsed: root.isCollapsed
            onClicked: root.panel.notes.toggleSection(root.index)
        }
    }

    Repeater {
        model: root.isHeader ? 0 : 1
        onItemAdded: (index, item) => root.shown = item

        NoteCard {
            y: Theme.space
            width: root.width
            focus: true
            row: root
        }
    }
}
