// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.App
import Vesk.Components

// The content of a message window. The safe button has the focus at first, or no button if the window opens
// unasked: Return must not answer a question that the user has not read. A text that is taller than the
// window scrolls; the buttons stay in place.
Rectangle {
    id: root

    required property string heading
    required property string message
    required property string acceptLabel
    required property string rejectLabel
    required property string details
    // Whether the second button is the one that loses something.
    required property bool isRejectCostly

    property real maximumWidth: 440
    property real maximumHeight: 600
    // Whether a button has the focus at first.
    property bool hasDefaultButton: true
    readonly property real margin: 24

    signal accepted
    signal rejected

    function takeFocus() {
        if (!root.hasDefaultButton)
            root.forceActiveFocus();
        else if (reject.visible && !root.isRejectCostly)
            reject.forceActiveFocus();
        else
            accept.forceActiveFocus();
    }

    function scrollBy(step: real) {
        const most = Math.max(0, flickable.contentHeight - flickable.height);
        flickable.contentY = Math.max(0, Math.min(most, flickable.contentY + step));
    }

    width: Math.min(440, root.maximumWidth)
    height: Math.min(texts.height + buttons.height + 3 * root.margin, root.maximumHeight)
    color: Theme.background
    Keys.onUpPressed: root.scrollBy(-40)
    Keys.onDownPressed: root.scrollBy(40)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
        if (event.accepted)
            root.scrollBy((event.key === Qt.Key_PageUp ? -0.8 : 0.8) * flickable.height);
    }
    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: root.heading
    Accessible.description: root.message

    Flickable {
        id: flickable

        anchors.top: parent.top
        anchors.topMargin: root.margin
        anchors.bottom: buttons.top
        anchors.bottomMargin: root.margin
        width: root.width
        contentHeight: texts.height
        boundsBehavior: Flickable.StopAtBounds
        clip: contentHeight > height

        Column {
            id: texts

            x: root.margin
            width: root.width - 2 * root.margin
            spacing: 12

            Text {
                width: parent.width
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                text: root.heading
                font: Theme.fonts.headline
                color: Theme.primary
            }

            Text {
                width: parent.width
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                lineHeight: 1.15
                text: root.message
                font: Theme.fonts.body
                color: Theme.secondary
            }

            MessageDetails {
                visible: root.details.length > 0
                width: parent.width
                text: root.details
            }
        }
    }

    // Shows that there is more text, and how much.
    Rectangle {
        visible: flickable.contentHeight > flickable.height
        x: root.width - width - 6
        y: flickable.y + flickable.visibleArea.yPosition * flickable.height
        width: 5
        height: flickable.visibleArea.heightRatio * flickable.height
        radius: 2.5
        color: Theme.tertiary
    }

    Flow {
        id: buttons

        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.margin
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        width: Math.min(root.width - 2 * root.margin, accept.width + (reject.visible ? reject.width + spacing : 0))
        spacing: Theme.space

        MessageButton {
            id: reject

            visible: root.rejectLabel.length > 0
            text: root.rejectLabel
            onClicked: root.rejected()
        }

        MessageButton {
            id: accept

            isMain: true
            text: root.acceptLabel
            onClicked: root.accepted()
        }
    }
}
