// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// Says why a list is empty although there are records.
Item {
    id: root

    required property string title
    property string hint: ""
    property string symbol: "magnifyingglass"

    Accessible.role: Accessible.StaticText
    Accessible.name: root.hint.length > 0 ? root.title + ". " + root.hint : root.title
    Accessible.ignored: !root.visible

    Column {
        anchors.centerIn: parent
        width: parent.width - 4 * Theme.margin
        spacing: Theme.wideSpace

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: root.symbol
            size: Math.round(26 * Theme.fonts.scale)
            color: Theme.quaternary
        }

        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            text: root.title
            textFormat: Text.PlainText
            font: Theme.fonts.body
            color: Theme.secondary
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            visible: text.length > 0
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: root.hint
            textFormat: Text.PlainText
            font: Theme.fonts.small
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
