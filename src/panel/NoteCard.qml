// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// A note: a summary while closed, its editor while open.
Item {
    id: root

    required property NoteRoles row
    readonly property PanelModel panel: root.row.panel
    readonly property string cardId: root.row.cardId
    // A row that has left the list and is fading out has no place in it, and perhaps already a successor.
    readonly property bool isExpanded: root.row.index >= 0 && root.panel.openNote.cardId === root.cardId
    readonly property bool isSelected: root.panel.selection.cardId === root.cardId
    // The note that was last open here. While it is still fading, a search may bring another note to this
    // row.
    property string openedId: ""
    property real progress: root.isExpanded ? 1 : 0
    // How far the card has opened, from 0 to 1.
    readonly property real openness: root.isExpanded || root.openedId === root.cardId ? root.progress : 0
    property Item form: null
    readonly property bool wantsActions: hover.hovered || root.isSelected
    property bool hasActions: false
    property NoteActions actions: null
    readonly property real openHeight: root.form === null ? summary.height : root.form.height

    implicitHeight: Math.round(summary.height + (root.openHeight - summary.height) * root.openness) + 2 * 12
    activeFocusOnTab: root.isSelected || activeFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: root.row.title
    Accessible.description: root.row.spoken
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: root.isSelected
    Accessible.onPressAction: root.panel.cards.activate(root.row.cardId)

    onIsExpandedChanged: {
        if (root.isExpanded)
            root.openedId = root.cardId;
    }
    onWantsActionsChanged: root.hasActions = root.hasActions || root.wantsActions

    Behavior on progress {
        Spring {
        }
    }

    HoverHandler {
        id: hover
    }

    CardPlate {
        anchors.fill: parent
        isSelected: root.isSelected
        isHovered: hover.hovered || menu.isOpen
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: mouse => {
            if (mouse.button === Qt.RightButton)
                menu.show(mouse.x, mouse.y, false);
        }
        onClicked: mouse => {
            if (mouse.button === Qt.LeftButton)
                root.panel.cards.activate(root.row.cardId);
        }
    }

    CardMenuHost {
        id: menu

        card: root
        panel: root.panel
        cardId: root.cardId
        isPinned: root.row?.isPinned ?? false
        isExpanded: root.isExpanded
    }

    Connections {
        function onMenuRequested() {
            menu.showByKey();
        }

        target: root.row
    }

    Item {
        id: content

        x: Theme.margin
        y: 12
        width: root.width - 2 * Theme.margin
        height: root.height - 2 * 12
        clip: root.openness > 0 && root.openness < 1

        NoteSummary {
            id: summary

            width: parent.width
            opacity: 1 - root.openness
            visible: opacity > 0
            title: root.row.title
            isPinned: root.row.isPinned
            preview: root.row.preview
            itemTexts: root.row.itemTexts
            itemsDone: root.row.itemsDone
            itemsRightToLeft: root.row.itemsRightToLeft
            itemLines: root.row.itemLines
            furtherItems: root.row.furtherItems
            done: root.row.done
            total: root.row.total
            time: root.row.time
            source: root.row.source
            sourceBundle: root.row.sourceBundle
            query: root.panel.query
            isStill: root.panel.notes.isSweeping
            canTabIn: root.isSelected
            onItemToggled: line => root.panel.cards.toggleItem(root.row.cardId, line)
        }

        Repeater {
            model: root.openness > 0 || root.isExpanded ? 1 : 0
            onItemAdded: (index, item) => root.form = item
            onItemRemoved: root.form = null

            NoteForm {
                // While it fades out, a closed note must not get keys or clicks, and its row may be gone.
                enabled: root.isExpanded
                width: content.width
                opacity: root.openness
                focus: true
                cardId: root.row?.cardId ?? ""
                title: root.row?.title ?? ""
                text: root.row?.text ?? ""
                sourceBundle: root.row?.sourceBundle ?? ""
                sourceLabel: root.row?.sourceLabel ?? ""
                sourceTip: root.row?.sourceTip ?? ""
                panel: root.panel
            }
        }
    }

    Symbol {
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: Theme.margin
        opacity: root.row.isPinned && !(root.actions?.isUp ?? false) ? 1 - root.openness : 0
        name: "pin.fill"
        size: Math.round(12 * Theme.fonts.scale)
        color: Theme.accent
    }

    // Created when first needed, because most cards are never pointed at.
    Repeater {
        model: root.hasActions ? 1 : 0
        onItemAdded: (index, item) => root.actions = item as NoteActions

        NoteActions {
            anchors.top: root.top
            anchors.right: root.right
            anchors.margins: 7
            isWanted: !root.isExpanded && hover.hovered
            canTabIn: !root.isExpanded && root.isSelected
            // When a card is removed, its row is gone before the buttons are.
            isPinned: root.row?.isPinned ?? false
            onPinToggled: root.panel.cards.togglePinned(root.row.cardId)
            onCopied: root.panel.cards.copy(root.row.cardId)
            onPasted: root.panel.cards.pasteBack(root.row.cardId)
            onRemoved: root.panel.cards.remove(root.row.cardId)
            onMissed: root.panel.cards.activate(root.row.cardId)
        }
    }
}
