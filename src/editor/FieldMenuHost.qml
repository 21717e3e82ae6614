// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Editor

// Shows a text field's menu, which is created each time.
Loader {
    id: root

    required property Item field
    // True already before the menu takes the focus from the field.
    readonly property bool isOpen: root.isOpening || (root.item ? (root.item as FieldMenu).isOpen : false)
    property bool isOpening: false

    // `point` is in the field's coordinates.
    function show(point: point, isByKey: bool) {
        const transfer = root.field.FieldTransfer;
        root.setSource("FieldMenu.qml", {
                "transfer": transfer,
                "hasSelection": transfer.hasSelection(),
                "hasText": transfer.hasText()
            });
        const menu = root.item as FieldMenu;
        root.isOpening = true;
        menu.openAt(root.field, point.x, point.y);
        root.isOpening = false;
        if (isByKey)
            menu.selectFirst();
    }
}
