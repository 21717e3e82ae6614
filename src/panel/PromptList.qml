// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// The list of the prompts tab.
CardList {
    id: root

    rows: root.panel.prompts
    name: qsTr("Prompts")
    delegate: PromptRow {
        width: ListView.view.width - 2 * Theme.margin
        panel: root.panel
    }
}
