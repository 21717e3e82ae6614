// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// A prompt: whether it is done, its text, and its actions.
Item {
    id: root

    required property string cardId
    required property string text
    required property bool isDone
    required property PanelModel panel
    readonly property bool isSelected: root.panel.selection.cardId === root.cardId

    function showMenu() {
        menu.showByKey();
    }

    implicitHeight: body.y + body.height + 3 + actions.height + 6
    activeFocusOnTab: root.isSelected || activeFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: root.isDone ? qsTr("%1, done").arg(root.text) : root.text
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: root.isSelected
    Accessible.onPressAction: root.panel.cards.activate(root.cardId)

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
        acceptedButtons: Qt.RightButton
        onPressed: mouse => menu.show(mouse.x, mouse.y, false)
    }

    CardMenuHost {
        id: menu

        card: root
        panel: root.panel
        cardId: root.cardId
        isPrompt: true
        isDone: root.isDone
    }

    PressButton {
        id: tick

        anchors.left: parent.left
        anchors.leftMargin: Theme.margin - 3
        y: 9
        width: Math.round(24 * Theme.fonts.scale)
        height: width
        focusRadius: height / 2 + 3
        activeFocusOnTab: root.isSelected || activeFocus
        name: root.isDone ? qsTr("Mark as not done") : qsTr("Mark as done")
        Accessible.role: Accessible.CheckBox
        Accessible.checkable: true
        Accessible.checked: root.isDone
        onClicked: root.panel.cards.activate(root.cardId)

        CheckCircle {
            anchors.centerIn: parent
            isDone: root.isDone
            size: 18
        }
    }

    ExpandableText {
        id: body

        anchors.left: tick.right
        anchors.leftMargin: 7
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        y: 12
        text: root.text
        query: root.panel.query
        lineLimit: 5
        isDone: root.isDone
    }

    PressButton {
        id: more

        anchors.left: body.left
        anchors.verticalCenter: actions.verticalCenter
        visible: body.isLong
        activeFocusOnTab: root.isSelected || activeFocus
        implicitWidth: label.implicitWidth + 4 + chevron.width
        implicitHeight: Math.round(22 * Theme.fonts.scale)
        pressedScale: 0.97
        name: label.text
        onClicked: body.isExpanded = !body.isExpanded

        Text {
            id: label

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            text: body.isExpanded ? qsTr("Show less") : qsTr("Show more")
            textFormat: Text.PlainText
            font: Theme.fonts.caption
            color: more.hovered ? Theme.primary : Theme.secondary
            Accessible.ignored: true
        }

        Symbol {
            id: chevron

            anchors.left: label.right
            anchors.leftMargin: 4
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.down"
            size: Math.round(9 * Theme.fonts.scale)
            color: label.color
            rotation: body.isExpanded ? 180 : 0

            Behavior on rotation {
                Spring {
                }
            }
        }
    }

    Row {
        id: actions

        anchors.top: body.bottom
        anchors.topMargin: 3
        anchors.right: parent.right
        anchors.rightMargin: 9
        spacing: 1

        CopyButton {
            id: copy

            activeFocusOnTab: root.isSelected || activeFocus
            onClicked: {
                root.panel.cards.copy(root.cardId);
                copy.confirm();
            }
        }

        SymbolButton {
            activeFocusOnTab: root.isSelected || activeFocus
            name: KeyLabels.spelt(qsTr("Paste into the App You Came From (⌘↩)"), KeyLabels.Window)
            symbol: "arrow.up.forward.app"
            onClicked: root.panel.cards.pasteBack(root.cardId)
        }

        SymbolButton {
            activeFocusOnTab: root.isSelected || activeFocus
            name: KeyLabels.spelt(qsTr("Delete (⌘⌫)"), KeyLabels.Window)
            symbol: "trash"
            onClicked: root.panel.cards.remove(root.cardId)
        }
    }
}
