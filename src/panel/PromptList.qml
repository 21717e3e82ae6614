// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// The prompts of their tab.
CardList {
    id: root

    rows: root.panel.prompts
    name: qsTr("Prompts")
    delegate: PromptRow {
        width: ListView.view.width - 2 * Theme.margin
        panel: root.panel
    }
}
