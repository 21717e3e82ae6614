// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components
import Vesk.Panel

// A text that is truncated after some lines until it is expanded. It can be selected with the pointer.
Item {
    id: root

    required property string text
    required property string query
    required property int lineLimit
    required property bool isDone
    property bool isExpanded: false
    readonly property bool isLong: measure.isLong

    implicitHeight: edit.implicitHeight
    height: implicitHeight
    clip: heightChange.running

    Behavior on height {
        enabled: root.isLong

        Spring {
            id: heightChange
        }
    }

    TextMeasure {
        id: measure

        text: root.text
        font: edit.font
        width: root.width
        lineLimit: root.lineLimit
    }

    TextEdit {
        id: edit

        width: root.width
        readOnly: true
        selectByMouse: true
        wrapMode: TextEdit.Wrap
        textFormat: TextEdit.PlainText
        text: root.isExpanded ? root.text : measure.shortText
        font.family: Theme.fonts.body.family
        font.pixelSize: Theme.fonts.body.pixelSize
        font.strikeout: root.isDone
        color: root.isDone ? Theme.secondary : Theme.primary
        selectionColor: Theme.textSelection
        selectedTextColor: Theme.primary
        Accessible.ignored: true
    }

    MatchMarks {
        document: edit.textDocument
        query: root.query
        color: Theme.matchFill
    }
}
