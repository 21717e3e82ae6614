// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// One note, closed: its title, its first checkboxes or a preview, and where and when it comes from.
Rectangle {
    id: root

    required property string query
    required property string title
    required property string preview
    required property list<string> itemTexts
    required property list<bool> itemsDone
    required property list<int> itemLines
    required property int furtherItems
    required property int done
    required property int total
    required property string time
    required property string source
    required property string sourceBundle
    required property bool isPinned
    required property bool isFocused

    signal clicked
    signal itemToggled(int line)

    implicitHeight: content.implicitHeight + 2 * 12
    radius: Theme.cardRadius
    color: root.isFocused ? Theme.selectionFill : hover.hovered ? Theme.fill : Theme.faintFill
    border.width: 1
    border.color: root.isFocused ? Theme.accent : Theme.edge
    antialiasing: true
    Accessible.role: Accessible.ListItem
    Accessible.name: root.title
    Accessible.description: root.preview
    Accessible.selectable: true
    Accessible.selected: root.isFocused
    Accessible.onPressAction: root.clicked()

    Behavior on color {
        Ease {
        }
    }
    Behavior on border.color {
        Ease {
        }
    }

    HoverHandler {
        id: hover
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.clicked()
    }

    Column {
        id: content

        x: Theme.margin
        y: 12
        width: root.width - 2 * Theme.margin
        spacing: 5

        MatchText {
            // Leaves the corner to the pin.
            width: parent.width - 26
            text: root.title
            query: root.query
            font: Theme.titleFont
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
                    text: root.itemTexts[index] ?? ""
                    isDone: root.itemsDone[index] ?? false
                    query: root.query
                    onClicked: root.itemToggled(root.itemLines[index])
                }
            }

            Text {
                leftPadding: 24
                visible: root.furtherItems > 0
                text: qsTr("+ %1 more").arg(root.furtherItems)
                textFormat: Text.PlainText
                font: Theme.captionFont
                color: Theme.secondary
            }
        }

        MatchText {
            width: parent.width
            visible: root.preview.length > 0
            text: root.preview
            query: root.query
            maximumLineCount: 2
            lineSpacing: 2
            font: Theme.bodyFont
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
        }
    }

    Symbol {
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: Theme.margin
        visible: root.isPinned
        name: "pin.fill"
        size: 12
        color: Theme.accent
    }
}
