// SPDX-License-Identifier: MIT
import QtQuick

import Vesk.Panel

// The data of a row in the list of notes.
CardRow {
    required property int index
    required property bool isHeader
    required property string sectionTitle
    required property int sectionCount
    required property bool isCollapsed
    required property string cardId
    required property string text
    required property string title
    required property string preview
    required property string spoken
    required property list<string> itemTexts
    required property list<bool> itemsDone
    required property list<bool> itemsRightToLeft
    required property list<int> itemLines
    required property int furtherItems
    required property int done
    required property int total
    required property string time
    required property string source
    required property string sourceBundle
    required property string sourceLabel
    required property string sourceTip
    required property bool isPinned

    required property PanelModel panel
}
