// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Guide
import Vesk.Panel

// What the panel's window shows: the panel, and over it, while it is up, the guide. Nothing of the panel
// can be reached below the guide, by no key and no click.
FocusScope {
    id: root

    required property PanelModel model
    required property real cornerRadius
    readonly property bool hasGuide: root.model.guide.isShown

    focus: true
    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true
    onHasGuideChanged: {
        if (!hasGuide)
            panel.forceActiveFocus();
    }

    PanelView {
        id: panel

        anchors.fill: parent
        enabled: !root.hasGuide
        model: root.model
        cornerRadius: root.cornerRadius
    }

    // The upper edge, by which the mouse makes the panel higher or lower.
    MouseArea {
        id: edge

        width: parent.width
        height: 12
        z: 1
        hoverEnabled: true
        preventStealing: true
        cursorShape: Qt.SizeVerCursor
        onPressed: root.model.height.edgePressed()

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 5
            width: 44
            height: 4
            radius: 2
            antialiasing: true
            color: Theme.tertiary
            opacity: edge.containsMouse || edge.pressed ? 1 : 0

            Behavior on opacity {
                NumberAnimation {
                    duration: Theme.motion.ease
                    easing.type: Easing.OutQuad
                }
            }
        }
    }

    // By a repeater, since the loader of Qt 6.4 takes no bound component.
    Repeater {
        model: root.hasGuide ? 1 : 0

        Item {
            anchors.fill: parent

            Rectangle {
                anchors.fill: parent
                radius: root.cornerRadius
                color: Theme.background
                opacity: 0.7
                antialiasing: true
            }

            GuideView {
                anchors.centerIn: parent
                width: Math.min(implicitWidth, parent.width - 2 * Theme.wideSpace)
                height: Math.min(implicitHeight, parent.height - 2 * Theme.wideSpace)
                guide: root.model.guide
                Component.onCompleted: forceActiveFocus()
            }
        }
    }
}
