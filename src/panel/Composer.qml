// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Editor
import Vesk.Panel

// The field for a new note; grows from one line to five.
Plate {
    id: root

    required property PanelModel model
    readonly property alias hasKeyboard: edit.activeFocus
    readonly property alias isComposing: edit.inputMethodComposing
    readonly property real maximumTextHeight: 5 * metrics.height

    function takeKeyboard() {
        edit.forceActiveFocus();
    }

    function showMenu() {
        menu.show(Qt.point(edit.cursorRectangle.x, edit.cursorRectangle.y + edit.cursorRectangle.height), true);
    }

    // Keeps the caret visible when the lines do not fit.
    function followCaret(caret: rect) {
        if (caret.y < flickable.contentY)
            flickable.contentY = caret.y;
        else if (caret.y + caret.height > flickable.contentY + flickable.height)
            flickable.contentY = caret.y + caret.height - flickable.height;
    }

    implicitHeight: flickable.height + 20
    border.color: edit.activeFocus ? Theme.accent : Theme.edge

    Behavior on border.color {
        Ease {
        }
    }

    FontMetrics {
        id: metrics

        font: Theme.fonts.field
    }

    Connections {
        function onDraftChanged() {
            if (edit.text !== root.model.draft)
                edit.text = root.model.draft;
        }

        target: root.model
    }

    Connections {
        function onLineBreakRequested() {
            edit.FieldTransfer.replaceSelection("\n");
        }

        target: root.model.keyboard
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: mouse => {
            root.takeKeyboard();
            if (mouse.button === Qt.RightButton)
                menu.show(mapToItem(edit, mouse.x, mouse.y), false);
        }
    }

    FieldMenuHost {
        id: menu

        field: edit
    }

    Symbol {
        id: plus

        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        y: flickable.y + (metrics.height - height) / 2
        name: "plus"
        size: Math.round(16 * Theme.fonts.scale)
        color: Theme.accent
    }

    Flickable {
        id: flickable

        anchors.left: plus.right
        anchors.leftMargin: Theme.space - edit.x
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        y: 10
        height: Math.min(edit.contentHeight, root.maximumTextHeight)
        contentWidth: width
        contentHeight: edit.contentHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        TextEdit {
            id: edit

            // Room for the caret before the first letter and of a right-to-left line.
            x: 1
            width: flickable.width - x
            wrapMode: TextEdit.Wrap
            rightPadding: 1
            textFormat: TextEdit.PlainText
            font: Theme.fonts.field
            color: Theme.primary
            selectionColor: Theme.textSelection
            selectedTextColor: Theme.primary
            selectByMouse: true
            persistentSelection: true
            activeFocusOnTab: true
            cursorDelegate: Caret {
                isWanted: edit.cursorVisible
                place: edit.cursorRectangle
            }
            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Accessible.role: Accessible.EditableText
            Accessible.multiLine: true
            Accessible.name: placeholder.text
            onTextChanged: root.model.draft = text
            // Keep the selection: the menu acts on it while it has the focus, and so does a user who returns
            // to the window.
            onActiveFocusChanged: {
                if (!activeFocus && !menu.isOpen && Window.active)
                    deselect();
            }
            onCursorRectangleChanged: root.followCaret(cursorRectangle)

            Text {
                id: placeholder

                width: parent.width - edit.rightPadding
                elide: Text.ElideRight
                // Where the caret of an empty text is.
                horizontalAlignment: Theme.isMirrored ? Text.AlignRight : Text.AlignLeft
                LayoutMirroring.enabled: false
                visible: edit.length === 0 && edit.preeditText.length === 0
                textFormat: Text.PlainText
                text: root.model.tab === PanelModel.Tab.Prompts ? qsTr("Write a follow-up prompt…") : qsTr("Write a note…")
                font: edit.font
                color: Theme.tertiary
                Accessible.ignored: true
            }
        }
    }

    StillUnderMouse {
        flickable: flickable
    }
}
