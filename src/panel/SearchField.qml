// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Editor
import Vesk.Panel

// The capsule-shaped search field.
Plate {
    id: root

    required property PanelModel model
    readonly property alias hasKeyboard: input.activeFocus
    readonly property alias isComposing: input.inputMethodComposing

    function takeKeyboard() {
        input.forceActiveFocus();
    }

    function showMenu() {
        menu.show(Qt.point(input.cursorRectangle.x, input.cursorRectangle.y + input.cursorRectangle.height), true);
    }

    implicitHeight: Math.round(34 * Theme.fonts.scale)
    radius: height / 2
    border.color: input.activeFocus ? Theme.accent : Theme.edge

    Behavior on border.color {
        Ease {
        }
    }

    Connections {
        function onSearchChanged() {
            if (input.text !== root.model.search)
                input.text = root.model.search;
        }

        target: root.model
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: mouse => {
            root.takeKeyboard();
            if (mouse.button === Qt.RightButton)
                menu.show(mapToItem(input, mouse.x, mouse.y), false);
        }
    }

    FieldMenuHost {
        id: menu

        field: input
    }

    Symbol {
        id: glass

        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: Math.round(13 * Theme.fonts.scale)
        color: Theme.secondary
    }

    TextInput {
        id: input

        anchors.left: glass.right
        anchors.leftMargin: Theme.space - leftPadding
        anchors.right: clear.visible ? clear.left : parent.right
        anchors.rightMargin: clear.visible ? Theme.space : Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        clip: true
        // Room for the caret before the first letter and of a right-to-left text.
        leftPadding: 1
        rightPadding: 1
        horizontalAlignment: placeholder.visible ? TextInput.AlignLeft : undefined
        font: Theme.fonts.body
        color: Theme.primary
        selectionColor: Theme.textSelection
        selectedTextColor: Theme.primary
        selectByMouse: true
        persistentSelection: true
        activeFocusOnTab: true
        cursorDelegate: Caret {
            isWanted: input.cursorVisible
            place: input.cursorRectangle
        }
        Accessible.role: Accessible.EditableText
        Accessible.searchEdit: true
        Accessible.name: qsTr("Search")
        onTextChanged: root.model.search = text
        // Keep the selection: the menu acts on it while it has the focus, and so does a user who returns to
        // the window.
        onActiveFocusChanged: {
            if (!activeFocus && !menu.isOpen && Window.active)
                deselect();
        }

        Text {
            id: placeholder

            anchors.verticalCenter: parent.verticalCenter
            x: input.leftPadding
            width: parent.width - input.leftPadding - input.rightPadding
            elide: Text.ElideRight
            visible: input.length === 0 && input.preeditText.length === 0
            textFormat: Text.PlainText
            text: qsTr("Search")
            font: input.font
            color: Theme.tertiary
            Accessible.ignored: true
        }
    }

    PressButton {
        id: clear

        anchors.right: parent.right
        anchors.rightMargin: Theme.wideSpace
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(18 * Theme.fonts.scale)
        height: width
        visible: root.model.search.length > 0
        focusRadius: height / 2 + 3
        name: qsTr("Clear Search")
        onClicked: root.model.search = ""

        Symbol {
            anchors.centerIn: parent
            name: "xmark.circle.fill"
            size: Math.round(14 * Theme.fonts.scale)
            color: clear.hovered ? Theme.secondary : Theme.tertiary
        }
    }
}
