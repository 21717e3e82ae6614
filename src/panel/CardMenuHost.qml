// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Panel

// Shows a card's menu, which is created each time: most cards never need it.
Loader {
    id: root

    required property Item card
    required property PanelModel panel
    required property string cardId
    property bool isPrompt: false
    property bool isDone: false
    property bool isPinned: false
    property bool isExpanded: false
    readonly property bool isOpen: root.item ? (root.item as CardMenu).isOpen : false

    // `x` and `y` are in the card's coordinates.
    function show(x: real, y: real, isByKey: bool) {
        root.setSource("CardMenu.qml", {
                "panel": root.panel,
                "cardId": root.cardId,
                "isPrompt": root.isPrompt,
                "isDone": root.isDone,
                "isPinned": root.isPinned,
                "isExpanded": root.isExpanded
            });
        const menu = root.item as CardMenu;
        menu.openAt(root.card, x, y);
        if (isByKey)
            menu.selectFirst();
    }

    function showByKey() {
        root.show(24, Math.min(root.card.height, 40), true);
    }
}
