// SPDX-License-Identifier: MIT
import QtQuick

// One row of a list: a section's header or a card, whichever is shown in it.
FocusScope {
    property Item shown: null

    // The card shall show its menu.
    signal menuRequested

    implicitHeight: shown ? shown.y + shown.height : 0
}
