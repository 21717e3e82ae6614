// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components

// Whether Vesk may read other applications, with a link to allow it.
Flow {
    id: root

    required property bool isTrusted
    readonly property color color: root.isTrusted ? Theme.success : Theme.attentionText

    signal settingsRequested
    // The link has received the focus.
    signal keyboardCame

    spacing: Theme.space

    Row {
        spacing: Theme.smallSpace
        Accessible.role: Accessible.StaticText
        Accessible.name: label.text

        Symbol {
            id: sign

            anchors.verticalCenter: label.verticalCenter
            name: root.isTrusted ? "checkmark.circle.fill" : "hand.raised.fill"
            size: Math.round(13 * Theme.fonts.scale)
            color: root.color
        }

        Text {
            id: label

            width: Math.min(implicitWidth, root.width - sign.width - parent.spacing)
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            text: root.isTrusted ? qsTr("Accessibility access allowed") : qsTr("Needs Accessibility access")
            font: Theme.fonts.small
            color: root.color
            Accessible.ignored: true
        }
    }

    PressButton {
        id: link

        visible: !root.isTrusted
        name: linkLabel.text
        implicitWidth: linkLabel.implicitWidth
        implicitHeight: linkLabel.implicitHeight
        pressedScale: 0.97
        focusRadius: 5
        Accessible.role: Accessible.Link
        onClicked: root.settingsRequested()
        onActiveFocusChanged: {
            if (activeFocus)
                root.keyboardCame();
        }

        Text {
            id: linkLabel

            textFormat: Text.PlainText
            text: qsTr("Open Settings")
            font: Theme.fonts.strongSmall
            color: Theme.accent
            Accessible.ignored: true
        }

        Rectangle {
            width: parent.width
            height: 1
            y: Math.round(linkLabel.baselineOffset) + 2
            visible: link.hovered
            color: Theme.accent
        }
    }
}
