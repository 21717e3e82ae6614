// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components

// A menu on top of a window's content: use `openBelow` for a button's menu, `openAt` for a context menu.
// Takes all keys and clicks until it closes.
Item {
    id: root

    default property alias entries: control.entries
    property string name: ""
    // Where the key combinations in the entries' texts work.
    property int place: KeyLabels.Window
    readonly property alias isOpen: control.isOpen
    property point corner

    function openBelow(item: Item) {
        openAt(item, Theme.isMirrored ? 0 : item.width, item.height + 4);
    }

    function openAt(item: Item, x: real, y: real) {
        corner = item.mapToItem(item.Window.contentItem, x, y);
        parent = item.Window.contentItem;
        control.open(item);
    }

    // For a menu that was opened with a key.
    function selectFirst() {
        control.selectFirst();
    }

    function close() {
        control.close();
    }

    anchors.fill: parent
    z: 1000
    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true
    visible: control.isOpen
    onVisibleChanged: {
        if (visible)
            sheet.forceActiveFocus();
    }

    MenuControl {
        id: control
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: control.close()
        onWheel: {
        }
    }

    // A soft shadow, darkest at the edge.
    Repeater {
        model: 6

        Rectangle {
            required property int index

            anchors.fill: sheet
            anchors.margins: -index - 1
            anchors.topMargin: 2 - index
            anchors.bottomMargin: -index - 3
            radius: sheet.radius + index + 1
            antialiasing: true
            color: Qt.rgba(0, 0, 0, 0.024)
        }
    }

    Rectangle {
        id: sheet

        x: Math.max(8, Math.min(root.corner.x - (root.corner.x > root.width / 2 ? width : 0), root.width - width - 8))
        y: Math.max(8, Math.min(root.corner.y, root.height - height - 8))
        width: rows.width + 10
        height: rows.height + 10
        radius: 10
        color: Theme.raised
        border.width: 1
        border.color: Theme.strongEdge
        antialiasing: true
        Accessible.role: Accessible.PopupMenu
        Accessible.name: root.name

        Column {
            id: rows

            x: 5
            y: 5

            Repeater {
                model: control.entries

                MenuRow {
                    required property MenuEntry modelData
                    required property int index

                    entry: modelData
                    place: root.place
                    // With large text a long entry takes more than one line.
                    width: Math.min(Math.max(implicitWidth, rows.implicitWidth), root.width - 2 * 8 - 10)
                    isCurrent: control.current === index
                    onPointedAt: control.current = index
                    onPointedAway: control.current = -1
                    onClicked: control.choose(index)
                }
            }
        }
    }
}
