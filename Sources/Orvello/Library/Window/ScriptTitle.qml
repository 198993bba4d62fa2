import QtQuick
import QtQuick.Controls

// A script's title in the list. A title that does not fit appears whole while the pointer rests on
// the row.
Label {
    id: root

    required property bool isHovered

    textFormat: Text.PlainText
    elide: Text.ElideRight
    maximumLineCount: 1

    ToolTip {
        visible: root.isHovered && root.truncated
        delay: 700
        // The shared tool tip would render a title that looks like markup.
        contentItem: Label {
            text: root.text
            textFormat: Text.PlainText
        }
    }
}
