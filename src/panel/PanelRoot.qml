// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Guide
import Vesk.Panel

// The content of the panel's window: the panel, covered by the guide while that is shown. No key or click
// reaches the panel below the guide.
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

    // The upper edge, which the mouse drags to change the panel's height.
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

    // By a repeater, because the Loader of Qt 6.4 does not accept a bound component.
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
