// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// A list of sections and cards. Keeps its scroll position when rows come and go, and scrolls the shortest way
// to the selection.
FocusScope {
    id: root

    required property PanelModel panel
    required property SectionedListModel rows
    required property string name
    property alias delegate: list.delegate
    readonly property bool isAnimated: Theme.motion.isAllowed && !root.rows.isSweeping

    // Selects the row of a card and scrolls to it; an empty `cardId` selects nothing.
    function select(cardId: string) {
        const row = root.rows.rowOf(cardId);
        list.currentIndex = row;
        if (row < 0)
            return;
        reveal(row);
        if (root.activeFocus && !root.panel.keyboard.isEditing && !root.panel.keyboard.isOnControl)
            (list.currentItem as CardRow)?.shown?.forceActiveFocus();
    }

    // Shows the menu of the selected card, if there is one.
    function showMenu() {
        (list.currentItem as CardRow)?.menuRequested();
    }

    function reveal(row: int) {
        const item = list.itemAtIndex(row);
        scroll.stop();
        if (list.height <= 0)
            return;
        if (item === null)
            list.positionViewAtIndex(row, ListView.Contain);
        else
            scrollTo(item.y - (row === 1 ? list.itemAtIndex(0)?.height ?? 0 : 0), item.y + item.height);
    }

    // Scrolls the shortest way until everything between these two content positions is visible.
    function scrollTo(top: real, bottom: real) {
        scroll.stop();
        scroll.to = Math.min(top, Math.max(bottom + list.bottomMargin - list.height, list.contentY));
        if (scroll.to !== list.contentY)
            scroll.start();
    }

    // Whether enough of a row, or of an item in it, is visible for the user to know what a key will do.
    function isInSight(item: Item): bool {
        const top = item.mapToItem(list, 0, 0).y;
        const seen = Math.min(top + item.height, list.height) - Math.max(top, 0);
        return seen >= Math.min(item.height, list.height) / 2;
    }

    // Whether the selected card is visible, or on its way because the keys have just moved the selection
    // there. If not, scrolls back to it.
    function bringCardIntoSight(): bool {
        const row = root.rows.rowOf(root.panel.selection.cardId);
        if (row < 0 || settling.running || scroll.running)
            return true;
        list.forceLayout();
        const item = list.itemAtIndex(row);
        if (item !== null && isInSight(item))
            return true;
        reveal(row);
        return false;
    }

    function bringControlIntoSight(): bool {
        const item = root.Window.activeFocusItem;
        if (!list.activeFocus || item === null || isInSight(item))
            return true;
        const top = item.mapToItem(list.contentItem, 0, 0).y;
        scrollTo(top, top + item.height);
        return false;
    }

    Connections {
        function onChanged() {
            settling.restart();
        }

        function onSightAsked(target: int) {
            const isSeen = target === CardSelection.Control ? root.bringControlIntoSight() : root.bringCardIntoSight();
            if (!isSeen)
                root.panel.selection.reportOutOfSight();
        }

        target: root.panel.selection
        enabled: root.visible
    }

    Connections {
        function onChanged() {
            if (root.panel.openNote.cardId.length > 0)
                opening.restart();
        }

        target: root.panel.openNote
        enabled: root.visible
    }

    // Show the results of a new search from the beginning.
    Connections {
        function onSearched() {
            scroll.stop();
            if (!list.atYBeginning)
                list.positionViewAtBeginning();
            settling.restart();
        }

        target: root.rows
        enabled: root.visible
    }

    // Waits for the end of the change that moved the selection, because only then are all rows in place.
    Timer {
        id: settling

        interval: 0
        onTriggered: root.select(root.panel.selection.cardId)
    }

    // By then the card has its full height.
    Timer {
        id: opening

        interval: 380
        onTriggered: {
            const row = root.rows.rowOf(root.panel.openNote.cardId);
            if (row >= 0)
                root.reveal(row);
        }
    }

    Spring {
        id: scroll

        target: list
        property: "contentY"
    }

    // The Tab key stops at the selection, not at a list that shows none.
    TabStop {
        activeFocusOnTab: list.count > 0 && !list.activeFocus
        onReached: {
            list.forceActiveFocus();
            root.panel.selection.selectSomething();
            root.select(root.panel.selection.cardId);
        }
    }

    ListView {
        id: list

        anchors.fill: parent
        focus: true
        leftMargin: Theme.margin
        rightMargin: Theme.margin
        bottomMargin: Theme.space
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: root.rows
        currentIndex: -1
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        Accessible.role: Accessible.List
        Accessible.name: root.name
        onMovementStarted: scroll.stop()

        add: RowAppearing {
            enabled: root.isAnimated
        }
        remove: RowLeaving {
            enabled: root.isAnimated
        }
        move: shift
        displaced: shift
    }

    StillUnderMouse {
        flickable: list
    }

    TapHandler {
        parent: list
        onTapped: root.panel.openNote.close()
    }

    RowShifting {
        id: shift

        enabled: root.isAnimated
    }

    EdgeFade {
        anchors.top: parent.top
        height: 8
        visible: !list.atYBeginning
    }

    EdgeFade {
        anchors.bottom: parent.bottom
        height: 12
        rotation: 180
        visible: !list.atYEnd
    }

    ScrollThumb {
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        list: list
    }
}
