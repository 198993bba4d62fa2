import QtQuick

// A dark pill that keeps small things readable above moving text and over any wallpaper.
Rectangle {
    id: root

    default property alias content: row.data

    implicitWidth: row.implicitWidth + 2 * row.x
    implicitHeight: 18
    radius: height / 2
    color: Qt.rgba(0, 0, 0, 0.8)

    Row {
        id: row
        x: 8
        height: parent.height
        spacing: 6
    }
}
