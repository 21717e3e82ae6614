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
