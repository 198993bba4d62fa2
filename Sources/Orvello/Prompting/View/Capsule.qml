import QtQuick

// A dark pill that keeps small things readable above moving text and over any wallpaper.
Rectangle {
    id: root

    default property alias content: row.data

    readonly property int padding: 8
    readonly property int spacing: 6

    implicitWidth: row.implicitWidth + 2 * padding
    implicitHeight: 18
    radius: height / 2
    color: Qt.rgba(0, 0, 0, 0.88)

    Row {
        id: row
        x: root.padding
        height: parent.height
        spacing: root.spacing
    }
}
