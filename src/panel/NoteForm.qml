// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components
import Vesk.Editor
import Vesk.Panel

// An open card: the note's editor, and a button that leads back to the note's source.
FocusScope {
    id: root

    required property string cardId
    required property string title
    required property string text
    required property string sourceBundle
    required property string sourceLabel
    required property string sourceTip
    required property PanelModel panel

    implicitHeight: editor.height + Theme.space + footer.height
    height: implicitHeight
    Component.onDestruction: {
        if (editor.hasFocus)
            root.panel.keyboard.isEditing = false;
    }

    NoteEditor {
        id: editor

        property real reportedHeight: 28
        property bool isSettled: false

        width: parent.width
        height: Math.min(340, Math.max(28, reportedHeight))
        focus: true
        text: root.text
        placeholder: qsTr("Title")
        name: root.title
        help: done.Accessible.name
        fontSize: 13.5
        firstLineIsTitle: true
        titleBoost: 3.5
        titleWeight: Font.DemiBold
        ground: Theme.selectionGround
        controller: root.panel.editor
        autofocus: true
        takesCommandReturn: true
        takesEscape: true
        // The text uses Tab, so Shift-Tab leads to the source.
        KeyNavigation.backtab: source.visible ? source : null
        takesTabbing: true
        onEdited: text => root.panel.cards.edit(root.cardId, text)
        onCommandReturned: root.panel.openNote.close()
        onEscaped: root.panel.openNote.close()
        onTabbed: isForwards => root.panel.changeTab(isForwards)
        onContentHeightReported: height => {
            reportedHeight = height;
            isSettled = true;
        }
        onHasFocusChanged: root.panel.keyboard.isEditing = hasFocus

        Behavior on reportedHeight {
            enabled: editor.isSettled

            Spring {
            }
        }
    }

    Item {
        id: footer

        anchors.top: editor.bottom
        anchors.topMargin: Theme.space
        width: parent.width
        height: Math.round(24 * Theme.fonts.scale)

        SourceButton {
            id: source

            anchors.left: parent.left
            anchors.leftMargin: -6
            anchors.verticalCenter: parent.verticalCenter
            maximumWidth: footer.width - done.width - Theme.margin
            visible: root.sourceLabel.length > 0
            label: root.sourceLabel
            help: root.sourceTip
            bundleId: root.sourceBundle
            KeyNavigation.tab: editor
            onClicked: root.panel.cards.openSource(root.cardId)
        }

        Row {
            id: done

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.tightSpace
            Accessible.role: Accessible.StaticText
            Accessible.name: KeyLabels.spelt(qsTr("Done (⌘↩)"), KeyLabels.Window)

            Text {
                // With large text, show only the keys, so that the source stays readable.
                visible: !source.visible || footer.width > (130 + 105) * Theme.fonts.scale + Theme.margin
                anchors.verticalCenter: parent.verticalCenter
                rightPadding: Theme.isMirrored ? 0 : 2
                leftPadding: Theme.isMirrored ? 2 : 0
                text: qsTr("Done")
                textFormat: Text.PlainText
                font: Theme.fonts.caption
                color: Theme.secondary
                Accessible.ignored: true
            }

            Row {
                spacing: done.spacing
                LayoutMirroring.enabled: false

                KeyCap {
                    glyph: "⌘"
                }

                KeyCap {
                    glyph: "↩"
                }
            }
        }
    }
}
