// SPDX-License-Identifier: MIT
import QtQuick

// A row of a list: contains a section's header or a card.
FocusScope {
    property Item shown: null

    // The card must show its menu.
    signal menuRequested

    implicitHeight: shown ? shown.y + shown.height : 0
}
