// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Says that no note matches what is searched for.
Item {
    id: root

    required property string query

    Column {
        anchors.centerIn: parent
        width: parent.width - 4 * Theme.margin
        spacing: Theme.wideSpace

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "magnifyingglass"
            size: 26
            color: Theme.quaternary
        }

        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            text: qsTr("No notes match “%1”").arg(root.query)
            textFormat: Text.PlainText
            font: Theme.bodyFont
            color: Theme.secondary
        }
    }
}
