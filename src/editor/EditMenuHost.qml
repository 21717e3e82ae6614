// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Editor

// Shows the menu of a note editor. The menu is created when first needed: most notes are edited without it.
Loader {
    id: root

    required property NoteTextView view
    required property TextEdit edit
    readonly property bool isOpen: root.item ? (root.item as EditMenu).isOpen : false

    // `point` is in the text item's coordinates.
    function show(point: point) {
        if (!root.item)
            root.setSource("EditMenu.qml", {
                    "view": root.view
                });
        const menu = root.item as EditMenu;
        menu.hasSelection = root.edit.selectedText.length > 0;
        menu.openAt(root.edit, point.x, point.y);
    }
}
