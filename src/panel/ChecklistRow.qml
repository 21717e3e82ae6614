// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components
import Vesk.Panel

// A checkbox on a card; clicking it or its text asks to toggle it.
PressButton {
    id: root

    required property string text
    required property bool isDone
    required property bool isRightToLeft
    required property string query
    required property bool isStill

    name: root.isDone ? qsTr("Mark “%1” as not done").arg(root.text) : qsTr("Mark “%1” as done").arg(root.text)
    pressedScale: 0.98
    // The checkbox is where its line begins, as in the editor.
    LayoutMirroring.enabled: root.isRightToLeft
    LayoutMirroring.childrenInherit: true
    implicitHeight: Math.max(Math.round(22 * Theme.fonts.scale), label.implicitHeight + 4)
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.isDone

    CheckCircle {
        id: circle

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        isDone: root.isDone
        isStill: root.isStill
        size: 16
    }

    MatchText {
        id: label

        anchors.left: circle.right
        anchors.leftMargin: Theme.space
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        fallbackIsRightToLeft: root.isRightToLeft
        query: root.query
        font: Theme.fonts.body
        color: root.isDone ? Theme.secondary : Theme.primary
        matchColor: Theme.matchFill
        strikeOut: root.isDone
    }
}
