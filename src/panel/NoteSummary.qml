// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// What a closed card shows: the note's title, its first checkboxes or a preview, and where and when it comes
// from.
Column {
    id: root

    required property string title
    required property bool isPinned
    required property string preview
    required property list<string> itemTexts
    required property list<bool> itemsDone
    required property list<bool> itemsRightToLeft
    required property list<int> itemLines
    required property int furtherItems
    required property int done
    required property int total
    required property string time
    required property string source
    required property string sourceBundle
    required property string query
    // Whether checkboxes change without animation.
    required property bool isStill
    // Whether the Tab key stops at the checkboxes.
    required property bool canTabIn

    signal itemToggled(int line)

    spacing: 5

    MatchText {
        anchors.left: parent.left
        // Leave the corner to the pin.
        width: parent.width - (root.isPinned ? 26 * Theme.fonts.scale : 0)
        text: root.title
        query: root.query
        font: Theme.fonts.title
        color: Theme.primary
        matchColor: Theme.matchFill
    }

    Column {
        id: checklist

        width: parent.width
        topPadding: 1
        spacing: 2
        visible: root.itemTexts.length > 0

        Repeater {
            model: root.itemTexts.length

            ChecklistRow {
                required property int index

                width: checklist.width
                activeFocusOnTab: root.canTabIn || activeFocus
                text: root.itemTexts[index] ?? ""
                isDone: root.itemsDone[index] ?? false
                isRightToLeft: root.itemsRightToLeft[index] ?? false
                query: root.query
                isStill: root.isStill
                onClicked: root.itemToggled(root.itemLines[index])
            }
        }

        Text {
            anchors.left: parent.left
            anchors.leftMargin: Math.round(16 * Theme.fonts.scale) + Theme.space
            visible: root.furtherItems > 0
            text: qsTr("+ %Ln more", "", root.furtherItems)
            textFormat: Text.PlainText
            font: Theme.fonts.caption
            color: Theme.secondary
            Accessible.ignored: true
        }
    }

    MatchText {
        width: parent.width
        visible: root.preview.length > 0
        text: root.preview
        query: root.query
        maximumLineCount: 2
        lineSpacing: 1
        font: Theme.fonts.hint
        color: Theme.secondary
        matchColor: Theme.matchFill
    }

    NoteFooter {
        width: parent.width
        time: root.time
        source: root.source
        sourceBundle: root.sourceBundle
        done: root.done
        total: root.total
        isStill: root.isStill
    }
}
