// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Editor

// Where a note's text is edited: plain text in the notes' markup, shown as what it means. Scrolls when
// it is less high than its text.
FocusScope {
    id: root

    // Set by the host to load a text; read back it is the text as edited.
    property alias text: view.text
    property string placeholder: qsTr("Start typing…")
    property alias fontSize: view.fontSize
    property alias firstLineIsTitle: view.firstLineIsTitle
    property alias titleBoost: view.titleBoost
    property alias titleWeight: view.titleWeight
    property alias controller: view.controller
    // Takes the keyboard when it is shown.
    property bool autofocus: false
    // Whether the host wants the key instead of what it does in a text.
    property alias takesReturn: view.takesReturn
    property alias takesCommandReturn: view.takesCommandReturn
    property alias takesEmptyItemReturn: view.takesEmptyItemReturn
    property alias takesEscape: view.takesEscape
    readonly property alias hasFocus: edit.activeFocus
    readonly property alias isComposing: edit.inputMethodComposing
    readonly property real inset: 4
    readonly property real contentHeight: edit.implicitHeight + 2 * root.inset

    signal edited(string text)
    signal returned
    signal commandReturned
    signal emptyItemReturned
    signal escaped
    signal contentHeightReported(real height)

    function insertPlainText(text: string) {
        view.insertPlainText(text);
    }

    function moveCaretToEnd() {
        view.moveCaretToEnd();
    }

    function forceFocus() {
        view.forceFocus();
    }

    // Keeps the caret in sight while there is more text than fits.
    function followCaret() {
        const caret = edit.cursorRectangle;
        const top = caret.y + edit.y;
        if (top < flickable.contentY + root.inset)
            flickable.contentY = Math.max(0, top - root.inset);
        else if (top + caret.height > flickable.contentY + flickable.height)
            flickable.contentY = top + caret.height + root.inset - flickable.height;
    }

    Component.onCompleted: {
        if (root.autofocus)
            view.focusWhenShown();
    }

    NoteTextView {
        id: view

        target: edit
        visibleTop: flickable.contentY - edit.y
        visibleHeight: flickable.height
        onEdited: text => root.edited(text)
        onReturned: root.returned()
        onCommandReturned: root.commandReturned()
        onEmptyItemReturned: root.emptyItemReturned()
        onEscaped: root.escaped()
        onLaidOut: root.followCaret()
    }

    HeightReport {
        width: root.width
        contentHeight: root.contentHeight
        onReported: height => root.contentHeightReported(height)
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        contentWidth: width
        contentHeight: root.contentHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        TextEdit {
            id: edit

            y: root.inset
            width: flickable.width
            height: Math.max(implicitHeight, flickable.height - 2 * root.inset)
            focus: true
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            font.pixelSize: Math.round(root.fontSize)
            color: Theme.primary
            selectionColor: Theme.textSelection
            selectedTextColor: Theme.primary
            selectByMouse: true
            persistentSelection: true
            cursorDelegate: Caret {
                edit: edit
                flashTime: view.caretFlashTime
            }
            Accessible.role: Accessible.EditableText
            Accessible.multiLine: true
            Accessible.name: root.placeholder
            onCursorRectangleChanged: root.followCaret()

            Text {
                visible: edit.length === 0 && edit.preeditText.length === 0
                width: parent.width
                elide: Text.ElideRight
                text: root.placeholder
                font.pixelSize: Math.round(root.fontSize + (root.firstLineIsTitle ? root.titleBoost : 0))
                font.weight: root.firstLineIsTitle ? root.titleWeight : Font.Normal
                color: Theme.tertiary
                Accessible.ignored: true
            }

            Repeater {
                model: view.boxes

                TextBox {
                    onToggled: view.toggleBox(position)
                }
            }
        }
    }
}
