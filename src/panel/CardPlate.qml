// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Components

// The background of a card: fainter than a field's, more visible under the pointer, and in the accent colour
// while selected.
Rectangle {
    id: root

    required property bool isSelected
    required property bool isHovered

    radius: Theme.cardRadius
    color: root.isSelected ? Theme.selectionFill : root.isHovered ? Theme.fill : Theme.faintFill
    border.width: 1
    border.color: root.isSelected ? Theme.accent : Theme.edge
    antialiasing: true

    Behavior on color {
        Ease {
        }
    }
    Behavior on border.color {
        Ease {
        }
    }
}
