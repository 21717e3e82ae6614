// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components
import Vesk.Panel

// A tab: its title and, unless it is empty, the number of records.
PressButton {
    id: root

    required property PanelModel model
    required property int tab
    required property int count
    // The scale of the label; 1 is the user's text size.
    required property real labelScale
    readonly property real fittingScale: Math.min(1, (root.width - 12) / Math.max(1, label.implicitWidth))
    readonly property bool isChosen: root.model.tab === root.tab

    implicitHeight: Math.round(26 * Theme.fonts.scale)
    pressedScale: 0.97
    focusRadius: height / 2 + 3
    Accessible.role: Accessible.PageTab
    Accessible.description: root.count > 0 ? root.count : ""
    Accessible.selectable: true
    Accessible.selected: root.isChosen
    onClicked: root.model.tab = root.tab

    Row {
        id: label

        anchors.centerIn: parent
        spacing: 6
        scale: root.labelScale

        Text {
            id: title

            text: root.name
            textFormat: Text.PlainText
            font: root.isChosen ? Theme.fonts.strongBody : Theme.fonts.mediumBody
            color: root.isChosen ? Theme.onAccent : root.hovered ? Theme.primary : Theme.secondary
            Accessible.ignored: true

            Behavior on color {
                Ease {
                }
            }
        }

        CountText {
            anchors.baseline: title.baseline
            visible: root.count > 0
            count: root.count
            font: Theme.fonts.strongCaption
            color: root.isChosen ? Theme.onAccent : Theme.tertiary
            opacity: root.isChosen && !Theme.hasHighContrast ? 0.75 : 1
        }
    }
}
