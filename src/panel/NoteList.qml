// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// The list of the notes tab and of the checklists tab.
CardList {
    id: root

    rows: root.panel.notes
    name: root.panel.tab === PanelModel.Tab.Checklists ? qsTr("Checklists") : qsTr("Notes")
    delegate: NoteRow {
        width: ListView.view.width - 2 * Theme.margin
        panel: root.panel
    }
}
