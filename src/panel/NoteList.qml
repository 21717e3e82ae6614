// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick

import Vesk.Components
import Vesk.Panel

// The sections and cards of all notes that are shown.
FocusScope {
    id: root

    required property PanelModel model
    readonly property bool isAnimated: Theme.allowsMotion && !root.model.notes.isSweeping

    // Brings the selected card into view. Waits for the end of the change that it comes with, since the
    // rows that go or come count then.
    function showFocused() {
        settling.restart();
    }

    Timer {
        id: settling

        interval: 0
        onTriggered: list.currentIndex = root.model.notes.rowOf(root.model.focusedId)
    }

    ListView {
        id: list

        anchors.fill: parent
        focus: true
        leftMargin: Theme.margin
        rightMargin: Theme.margin
        bottomMargin: Theme.space
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: root.model.notes
        currentIndex: -1
        keyNavigationEnabled: false
        highlightMoveDuration: Theme.springDuration
        highlightMoveVelocity: -1
        highlightResizeDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Notes")

        delegate: NoteRow {
            id: row

            width: list.width - 2 * Theme.margin
            panel: root.model
            isFocused: !row.isHeader && root.model.focusedId === row.cardId
        }
        add: Transition {
            enabled: root.isAnimated

            Spring {
                property: "opacity"
                from: 0
                to: 1
            }
            Spring {
                property: "scale"
                from: 0.97
                to: 1
            }
        }
        remove: Transition {
            enabled: root.isAnimated

            Spring {
                property: "opacity"
                to: 0
                duration: Theme.pressDuration
            }
            Spring {
                property: "scale"
                to: 0.97
                duration: Theme.pressDuration
            }
        }
        move: shift
        displaced: shift
    }

    // A card that is displaced while it still appears ends up whole as well.
    Transition {
        id: shift

        enabled: root.isAnimated

        Spring {
            property: "y"
        }
        Spring {
            property: "opacity"
            to: 1
        }
        Spring {
            property: "scale"
            to: 1
        }
    }

    // Cards pass under the edges softly, not as if cut.
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 1
        anchors.rightMargin: 1
        height: 8
        visible: !list.atYBeginning
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Theme.background
            }
            GradientStop {
                position: 1
                color: Theme.clearBackground
            }
        }
    }

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: 1
        anchors.rightMargin: 1
        height: 12
        visible: !list.atYEnd
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Theme.clearBackground
            }
            GradientStop {
                position: 1
                color: Theme.background
            }
        }
    }

    ScrollThumb {
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        list: list
    }
}
