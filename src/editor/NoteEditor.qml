// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Editor

// Edits a note's text: plain text in the markup of notes, styled according to its meaning. Scrolls when it is
// not tall enough for its text.
FocusScope {
    id: root

    // Set by the host to load a text; reading it returns the edited text.
    property alias text: view.text
    property string placeholder: qsTr("Start typing…")
    // What a screen reader calls the text, and what it says about its keys.
    property string name: root.placeholder
    property string help: ""
    property real fontSize: 14
    property bool firstLineIsTitle: false
    // In points, added to the font's size.
    property real titleBoost: 7
    property int titleWeight: Font.Bold
    property alias controller: view.controller
    // Whether it takes the focus when it is shown.
    property bool autofocus: false
    // Whether the host wants this key instead of its effect in a text.
    property bool takesReturn: false
    property bool takesCommandReturn: false
    property bool takesEmptyItemReturn: false
    property bool takesEscape: false
    property bool takesTabbing: false
    // The background colour.
    property color ground: Theme.background
    readonly property bool hasFocus: edit.activeFocus || menu.isOpen
    readonly property real inset: 4
    readonly property real contentHeight: edit.implicitHeight + 2 * root.inset

    signal edited(string text)
    signal returned
    signal commandReturned
    signal emptyItemReturned
    signal escaped
    signal tabbed(bool isForwards)
    signal contentHeightReported(real height)

    function forceFocus() {
        view.forceFocus();
    }

    // Keeps the caret visible when the text does not fit.
    function followCaret() {
        const caret = edit.cursorRectangle;
        const top = caret.y + edit.y;
        if (top < flickable.contentY + root.inset)
            flickable.contentY = Math.max(0, top - root.inset);
        else if (top + caret.height > flickable.contentY + flickable.height)
            flickable.contentY = top + caret.height + root.inset - flickable.height;
    }

    // Continues what the mouse is doing after it has scrolled the text.
    function followMouse(point: point) {
        const position = edit.positionAt(point.x, point.y + flickable.contentY - edit.y);
        if (view.dropPosition >= 0)
            view.dropPosition = position;
        else if (edit.selectedText.length > 0)
            edit.moveCursorSelection(position);
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
        look.fontSize: root.fontSize
        look.firstLineIsTitle: root.firstLineIsTitle
        look.titleBoost: root.titleBoost
        look.titleWeight: root.titleWeight
        keys.takesReturn: root.takesReturn
        keys.takesCommandReturn: root.takesCommandReturn
        keys.takesEmptyItemReturn: root.takesEmptyItemReturn
        keys.takesEscape: root.takesEscape
        keys.takesTabbing: root.takesTabbing
        keys.onReturned: root.returned()
        keys.onCommandReturned: root.commandReturned()
        keys.onEmptyItemReturned: root.emptyItemReturned()
        keys.onEscaped: root.escaped()
        keys.onTabbed: isForwards => root.tabbed(isForwards)
        onLaidOut: root.followCaret()
        onContextMenuRequested: point => menu.show(point)
    }

    HeightReport {
        width: root.width
        contentHeight: root.contentHeight
        onReported: height => root.contentHeightReported(height)
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        // Room for the caret before the first letter.
        anchors.leftMargin: -edit.x
        contentWidth: width
        contentHeight: root.contentHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        TextEdit {
            id: edit

            x: 1
            y: root.inset
            width: root.width
            height: Math.max(implicitHeight, flickable.height - 2 * root.inset)
            focus: true
            wrapMode: TextEdit.Wrap
            // Room for the caret of a right-to-left line.
            rightPadding: 2
            textFormat: TextEdit.PlainText
            font.family: Theme.fonts.field.family
            font.pixelSize: Math.round(root.fontSize * Theme.fonts.scale)
            color: Theme.primary
            selectionColor: Theme.textSelection
            selectedTextColor: Theme.primary
            selectByMouse: true
            persistentSelection: true
            cursorDelegate: Caret {
                isWanted: edit.cursorVisible
                place: edit.cursorRectangle
                flashTime: view.caretFlashTime
                leastHeight: hint.visible ? hint.height : 0
            }
            Accessible.role: Accessible.EditableText
            Accessible.multiLine: true
            Accessible.name: root.name
            Accessible.description: root.help
            onCursorRectangleChanged: root.followCaret()

            Text {
                id: hint

                visible: edit.length === 0 && edit.preeditText.length === 0
                width: parent.width - edit.rightPadding
                elide: Text.ElideRight
                textFormat: Text.PlainText
                // Where the caret of an empty text is.
                horizontalAlignment: Theme.isMirrored ? Text.AlignRight : Text.AlignLeft
                LayoutMirroring.enabled: false
                text: root.placeholder
                font.family: edit.font.family
                font.pixelSize: Math.round((root.fontSize + (root.firstLineIsTitle ? root.titleBoost : 0)) * Theme.fonts.scale)
                font.weight: root.firstLineIsTitle ? root.titleWeight : Font.Normal
                color: Theme.tertiary
                Accessible.ignored: true
            }

            // Where a dragged text would be inserted.
            Rectangle {
                readonly property rect place: edit.positionToRectangle(Math.max(0, view.dropPosition))

                visible: view.dropPosition >= 0
                x: place.x
                y: place.y
                width: 2
                height: place.height
                color: Theme.secondary
            }

            HoverHandler {
                cursorShape: Qt.IBeamCursor
            }

            DropArea {
                anchors.fill: parent
                keys: ["text/plain"]
                onPositionChanged: drag => view.dropPosition = edit.positionAt(drag.x, drag.y)
                onExited: view.dropPosition = -1
                onDropped: drop => {
                    // Do not use the event's text: that would wait for the source program.
                    view.drop();
                    drop.accept(Qt.CopyAction);
                }
            }

            Repeater {
                model: view.boxes

                TextBox {
                    onToggled: view.toggleBox(position)
                }
            }
        }
    }

    StillUnderMouse {
        flickable: flickable
    }

    EdgeFade {
        anchors.top: parent.top
        height: 8
        visible: !flickable.atYBeginning
        ground: root.ground
    }

    EdgeFade {
        anchors.bottom: parent.bottom
        height: 8
        rotation: 180
        visible: !flickable.atYEnd
        ground: root.ground
    }

    ScrollMark {
        flickable: flickable
    }

    AutoScroll {
        anchors.fill: parent
        flickable: flickable
        onScrolled: point => root.followMouse(point)
    }

    EditMenuHost {
        id: menu

        view: view
        edit: edit
    }
}
