// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Editor
import Vesk.QuickNote

// The content of the quick-note box.
FocusScope {
    id: root

    required property QuickNoteModel model
    required property NoteEditorController controller
    required property real cornerRadius
    readonly property real sideMargin: 22

    focus: true
    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: root.model.title

    Surface {
        anchors.fill: parent
        cornerRadius: root.cornerRadius

        DragHandler {
            target: null
            onActiveChanged: {
                if (active)
                    root.model.moveRequested();
            }
        }
    }

    Item {
        id: header

        x: root.sideMargin
        y: 18
        width: root.width - 2 * root.sideMargin
        height: heading.implicitHeight

        Symbol {
            id: icon

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: root.model.symbol
            size: 13 * Theme.fonts.scale
            color: Theme.accent
        }

        Text {
            id: heading

            anchors.left: icon.right
            anchors.leftMargin: Theme.space
            text: root.model.title
            textFormat: Text.PlainText
            font: Theme.fonts.strongBody
            color: Theme.secondary
            Accessible.ignored: true
        }

        Text {
            anchors.right: parent.right
            anchors.baseline: heading.baseline
            text: "Vesk"
            textFormat: Text.PlainText
            font: Theme.fonts.strongCaption
            color: Theme.tertiary
            Accessible.ignored: true
        }
    }

    Text {
        id: remark

        anchors.top: header.bottom
        anchors.topMargin: visible ? Theme.space : 0
        x: root.sideMargin
        width: root.width - 2 * root.sideMargin
        height: visible ? implicitHeight : 0
        visible: text.length > 0
        text: root.model.remark
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        font: Theme.fonts.caption
        color: Theme.secondary
    }

    NoteEditor {
        anchors.top: remark.bottom
        anchors.bottom: divider.top
        anchors.topMargin: Theme.wideSpace
        anchors.bottomMargin: Theme.wideSpace
        x: root.sideMargin
        width: root.width - 2 * root.sideMargin
        focus: true
        controller: root.controller
        text: root.model.text
        placeholder: qsTr("Write a note…")
        fontSize: 15
        firstLineIsTitle: !root.model.isChecklist
        titleBoost: 7
        titleWeight: Font.Bold
        takesReturn: !root.model.isChecklist
        takesCommandReturn: root.model.isChecklist
        takesEmptyItemReturn: root.model.isChecklist
        takesEscape: true
        onEdited: text => root.model.text = text
        onReturned: root.model.saveRequested()
        onCommandReturned: root.model.saveRequested()
        onEmptyItemReturned: root.model.saveRequested()
        onEscaped: root.model.closeRequested()
    }

    Rectangle {
        id: divider

        anchors.bottom: hints.top
        anchors.bottomMargin: 11
        width: root.width
        height: 1
        color: Theme.hasHighContrast ? Theme.edge : Theme.fill
    }

    Flow {
        id: hints

        anchors.bottom: parent.bottom
        anchors.bottomMargin: 11
        anchors.left: parent.left
        anchors.leftMargin: root.sideMargin
        anchors.right: parent.right
        anchors.rightMargin: root.sideMargin
        spacing: 16

        KeyHint {
            visible: root.model.isChecklist
            keys: ["↩"]
            label: qsTr("Next item")
        }

        KeyHint {
            keys: root.model.isChecklist ? ["⌘", "↩"] : ["↩"]
            label: qsTr("Save")
        }

        KeyHint {
            visible: !root.model.isChecklist
            keys: ["⇧", "↩"]
            label: qsTr("New line")
        }

        KeyHint {
            visible: !root.model.isChecklist
            keys: ["[", "]", "␣"]
            label: qsTr("Checkbox")
        }

        KeyHint {
            keys: ["esc"]
            label: qsTr("Close")
        }
    }
}
