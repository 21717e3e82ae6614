// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// The notes of the tab for notes or for checklists.
CardList {
    id: root

    rows: root.panel.notes
    name: root.panel.tab === PanelModel.Tab.Checklists ? qsTr("Checklists") : qsTr("Notes")
    delegate: NoteRow {
        width: ListView.view.width - 2 * Theme.margin
        panel: root.panel
    }
}
