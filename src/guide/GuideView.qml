// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Guide

// What Vesk does, and with which keys. Scrolls with the arrows and the page keys; Escape and the button
// dismiss it. The scrolling part has the focus at first, so that a key meant for something else does not
// dismiss the guide.
FocusScope {
    id: root

    required property Guide guide

    implicitWidth: 420
    implicitHeight: 600
    Accessible.role: Accessible.Dialog
    Accessible.name: heading.text
    Keys.onEscapePressed: root.guide.dismiss()

    Rectangle {
        anchors.fill: parent
        radius: 24
        antialiasing: true
        color: Theme.background
        border.width: 1
        border.color: Theme.strongEdge
    }

    StillUnderMouse {
        flickable: scroller
    }

    Flickable {
        id: scroller

        readonly property real end: Math.max(0, contentHeight - height)
        readonly property real line: Math.round(40 * Theme.fonts.scale)
        readonly property real page: height - line

        function moveTo(y: real) {
            contentY = Math.max(0, Math.min(end, y));
        }

        // Scrolls an item of the content into view.
        function reveal(item: Item) {
            const top = item.mapToItem(contentItem, 0, 0).y;
            moveTo(Math.min(top - Theme.margin, Math.max(contentY, top + item.height + Theme.margin - height)));
        }

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: button.top
        anchors.bottomMargin: 12
        anchors.margins: 1
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        contentHeight: column.height + 2 * 20
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Quick Guide")
        Accessible.focusable: true
        onHeightChanged: moveTo(contentY)
        Keys.onUpPressed: moveTo(contentY - line)
        Keys.onDownPressed: moveTo(contentY + line)
        Keys.onSpacePressed: event => moveTo(contentY + (event.modifiers & Qt.ShiftModifier ? -page : page))
        Keys.onPressed: event => {
            if (event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown)
                moveTo(contentY + (event.key === Qt.Key_PageUp ? -page : page));
            else if (event.key === Qt.Key_Home || event.key === Qt.Key_End)
                moveTo(event.key === Qt.Key_Home ? 0 : end);
        }

        Column {
            id: column

            x: 20
            y: 20
            width: scroller.width - 2 * 20
            spacing: 18

            Column {
                width: parent.width
                spacing: Theme.smallSpace

                ProductMark {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 72
                    height: 72
                    Accessible.ignored: true
                }

                Text {
                    id: heading

                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    text: qsTr("Welcome to Vesk")
                    font: Theme.fonts.welcome
                    color: Theme.primary
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                Text {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    text: qsTr("A quiet notes pad that catches whatever you select.")
                    font: Theme.fonts.body
                    color: Theme.secondary
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }

            Column {
                width: parent.width
                spacing: Theme.space

                Repeater {
                    model: GuideTopics {
                        commandKeys: CommandKeys
                    }

                    GuideRow {
                        id: row

                        width: column.width
                        isTrusted: root.guide.isTrusted
                        onSettingsRequested: root.guide.askForTrust()
                        onKeyboardCame: scroller.reveal(row)
                    }
                }
            }
        }
    }

    EdgeFade {
        anchors.top: scroller.top
        anchors.leftMargin: column.x
        anchors.rightMargin: column.x
        height: 12
        visible: !scroller.atYBeginning
    }

    EdgeFade {
        anchors.bottom: scroller.bottom
        height: 16
        rotation: 180
        visible: !scroller.atYEnd
    }

    Rectangle {
        readonly property real track: scroller.height - 2 * 12

        anchors.right: parent.right
        anchors.rightMargin: 5
        y: scroller.y + 12 + scroller.visibleArea.yPosition * track
        width: 5
        height: scroller.visibleArea.heightRatio * track
        visible: scroller.visibleArea.heightRatio < 1
        radius: width / 2
        antialiasing: true
        color: Theme.quaternary
        Accessible.ignored: true
    }

    PressButton {
        id: button

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 20
        height: label.implicitHeight + 2 * 9
        pressedScale: 0.98
        focusRadius: 13
        name: label.text
        onClicked: root.guide.dismiss()

        Rectangle {
            anchors.fill: parent
            radius: 10
            antialiasing: true
            color: Theme.accentFill
        }

        Text {
            id: label

            anchors.centerIn: parent
            textFormat: Text.PlainText
            text: qsTr("Got it")
            font: Theme.fonts.title
            color: Theme.onAccent
            Accessible.ignored: true
        }
    }
}
