import QtQuick
import QtQuick.Controls

// A script's title in the list. What has no room there is told while the pointer rests on the row.
Label {
    id: root

    required property bool isHovered

    textFormat: Text.PlainText
    elide: Text.ElideRight
    maximumLineCount: 1

    ToolTip {
        visible: root.isHovered && root.truncated
        delay: 700
        // The shared tool tip would take a title that looks like markup for it.
        contentItem: Label {
            text: root.text
            textFormat: Text.PlainText
        }
    }
}
