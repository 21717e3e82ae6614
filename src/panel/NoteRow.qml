// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// One row of the list of notes: a section's header or a card. Repeaters of one make whichever it is,
// since the loader of Qt 6.4 takes no bound component inside a delegate.
Item {
    id: root

    required property int index
    required property bool isHeader
    required property string sectionTitle
    required property int sectionCount
    required property bool isCollapsed
    required property string cardId
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

    required property PanelModel panel
    required property bool isFocused

    property Item shown: null

    implicitHeight: root.shown ? root.shown.y + root.shown.height : 0

    Repeater {
        model: root.isHeader ? 1 : 0
        onItemAdded: (index, item) => root.shown = item

        SectionHeader {
            y: root.index > 0 ? Theme.margin : 2
            width: root.width
            title: root.sectionTitle
            count: root.sectionCount
            isCollapsed: root.isCollapsed
            onClicked: root.panel.notes.toggleSection(root.index)
        }
    }

    Repeater {
        model: root.isHeader ? 0 : 1
        onItemAdded: (index, item) => root.shown = item

        NoteCard {
            y: Theme.space
            width: root.width
            query: root.panel.query
            title: root.title
            preview: root.preview
            itemTexts: root.itemTexts
            itemsDone: root.itemsDone
            itemLines: root.itemLines
            furtherItems: root.furtherItems
            done: root.done
            total: root.total
            time: root.time
            source: root.source
            sourceBundle: root.sourceBundle
            isPinned: root.isPinned
            isFocused: root.isFocused
            onClicked: root.panel.cards.open(root.cardId)
            onItemToggled: line => root.panel.cards.toggleItem(root.cardId, line)
        }
    }
}
